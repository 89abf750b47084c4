// qor-cli guide / info / pdf / mail-guide
#include "Cli.h"

#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/GuideMail.h"
#include "pages/PagePreparation.h"
#include "pages/PdfImages.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>

namespace qor::cli {

namespace {

// Page options from --text-size and the flags; the stored setting otherwise.
bool takePageOptions(Context& ctx, QStringList& args, bool allowDark, PageOptions* options, int* status)
{
    QString size;
    bool present = false;
    if (!takeOption(args, QStringLiteral("--text-size"), &size, &present)) {
        *status = ctx.usage(QStringLiteral("--text-size needs a percentage"));
        return false;
    }
    options->textSize = storedTextFontSize();
    if (present) {
        bool ok = false;
        options->textSize = size.toInt(&ok);
        if (!ok || options->textSize <= 0) {
            *status = ctx.usage(QStringLiteral("--text-size needs a positive whole percentage, not '%1'").arg(size));
            return false;
        }
    }
    options->dark = allowDark && takeFlag(args, QStringLiteral("--dark"));
    options->tablet = takeFlag(args, QStringLiteral("--tablet"));
    return true;
}

int printPage(Context& ctx, const QString& what, const QString& name, const PageOptions& options)
{
    const QString path = Resources::path(name, QStringLiteral("html"));
    if (name.contains(QLatin1Char('/')) || !QFileInfo::exists(path)) {
        ctx.err << "No " << what << " page named " << name << Qt::endl;
        return NothingFound;
    }
    const QString html = QString::fromUtf8(preparePageFile(path, options));
    if (ctx.json)
        ctx.printJson(QJsonObject{ { QStringLiteral("page"), name }, { QStringLiteral("html"), html } });
    else
        ctx.out << html;
    ctx.out.flush();
    return Found;
}

// guide ID / info PAGE: the same preparation, but only guides can be dark.
int pageCommand(Context& ctx, QStringList args, const QString& what, bool allowDark)
{
    PageOptions options;
    int status = 0;
    if (!takePageOptions(ctx, args, allowDark, &options, &status))
        return status;
    if (args.size() != 1)
        return ctx.usage(QStringLiteral("%1 needs exactly one page name").arg(what));
    return printPage(ctx, what, args.first(), options);
}

int guideCommand(Context& ctx, QStringList args)
{
    return pageCommand(ctx, std::move(args), QStringLiteral("guide"), true);
}

int infoCommand(Context& ctx, QStringList args)
{
    return pageCommand(ctx, std::move(args), QStringLiteral("info"), false);
}

int pdfCommand(Context& ctx, QStringList args)
{
    QString sizeText, scaleText, pageText;
    bool hasSize = false;
    if (!takeOption(args, QStringLiteral("--size"), &sizeText, &hasSize) || !hasSize)
        return ctx.usage(QStringLiteral("pdf needs --size WxH"));
    if (!takeOption(args, QStringLiteral("--scale"), &scaleText) || !takeOption(args, QStringLiteral("--page"), &pageText))
        return ctx.usage(QStringLiteral("--scale and --page need a value"));
    if (args.size() != 1)
        return ctx.usage(QStringLiteral("pdf needs exactly one resource name"));

    static const QRegularExpression sizeForm(QStringLiteral("^(\\d+(?:\\.\\d+)?)x(\\d+(?:\\.\\d+)?)$"));
    const auto m = sizeForm.match(sizeText);
    const QSizeF size = m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()) : QSizeF();
    if (size.isEmpty())
        return ctx.usage(QStringLiteral("--size needs two positive numbers as WxH, not '%1'").arg(sizeText));
    bool ok = true;
    const double scale = scaleText.isEmpty() ? 1.0 : scaleText.toDouble(&ok);
    if (!ok || scale <= 0 || scale > 16)
        return ctx.usage(QStringLiteral("--scale needs a number above 0 and at most 16"));
    const int page = pageText.isEmpty() ? 1 : pageText.toInt(&ok);
    if (!ok || page < 1)
        return ctx.usage(QStringLiteral("--page needs a page number from 1"));

    const QString name = args.first();
    const QString file = Resources::path(name);
    if (!QFileInfo::exists(file)) {
        ctx.err << "No resource named " << name << Qt::endl;
        return NothingFound;
    }
    ImageCreations::setScaleFactor(scale);
    const QString cachePath = ImageCreations::cacheFilenameForURL(QUrl::fromLocalFile(file), size, scale, page);
    const bool cached = QFileInfo::exists(cachePath);
    const QImage image = ImageCreations::imageWithPDFNamed(name, size, page);
    ImageCreations::setScaleFactor(0);
    if (image.isNull()) {
        ctx.err << "Cannot render page " << page << " of " << name << Qt::endl;
        return NothingFound;
    }
    if (ctx.json) {
        ctx.printJson(QJsonObject{ { QStringLiteral("path"), cachePath }, { QStringLiteral("width"), image.width() },
                                   { QStringLiteral("height"), image.height() }, { QStringLiteral("cached"), cached } });
    } else {
        ctx.out << cachePath << "\n" << image.width() << "x" << image.height() << "\n";
        ctx.out.flush();
    }
    return Found;
}

int mailGuideCommand(Context& ctx, QStringList args)
{
    if (args.size() != 1)
        return ctx.usage(QStringLiteral("mail-guide needs exactly one guide number"));
    QORModel& model = *QORModel::sharedInstance();
    model.loadGuideList();
    GuidePtr guide;
    for (const GuidePtr& g : std::as_const(model.guides()))
        if (g->guideId == args.first())
            guide = g;
    if (!guide || !QFileInfo::exists(Resources::path(guide->guideId, QStringLiteral("html")))) {
        ctx.err << "No guide page numbered " << args.first() << Qt::endl;
        return NothingFound;
    }
    ctx.out << QString::fromLatin1(mimeMessage(guideMailMessage(*guide)));
    ctx.out.flush();
    return Found;
}

const bool registered =
    registerCommand({ QStringLiteral("guide"), QStringLiteral("guide ID [--text-size N] [--dark] [--tablet]   the prepared guide page"), guideCommand })
    && registerCommand({ QStringLiteral("info"), QStringLiteral("info PAGE [--text-size N] [--tablet]   the prepared information page"), infoCommand })
    && registerCommand({ QStringLiteral("pdf"), QStringLiteral("pdf NAME --size WxH [--scale S] [--page N]   render through the image cache"), pdfCommand })
    && registerCommand({ QStringLiteral("mail-guide"), QStringLiteral("mail-guide ID        the guide mail as a MIME message"), mailGuideCommand });

} // namespace
} // namespace qor::cli
