#include "PlacardViewController.h"

#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/GuideViewFactory.h"

#include <QUrl>

namespace qor {

namespace {
// Several placards can lead to one guide (three for 112, two for 153).
const QStringList kImages = {
    QStringLiteral("111.png"), QStringLiteral("112.a.png"), QStringLiteral("112.b.png"), QStringLiteral("112.c.png"),
    QStringLiteral("114.png"), QStringLiteral("118.png"),   QStringLiteral("121.png"),   QStringLiteral("122.png"),
    QStringLiteral("123.png"), QStringLiteral("125.png"),   QStringLiteral("127.png"),   QStringLiteral("128.png"),
    QStringLiteral("134.png"), QStringLiteral("136.png"),   QStringLiteral("139.png"),   QStringLiteral("143.png"),
    QStringLiteral("148.png"), QStringLiteral("153.a.png"), QStringLiteral("153.b.png"), QStringLiteral("158.png"),
    QStringLiteral("163.png"), QStringLiteral("171.png"),
};
const QStringList kGuides = {
    QStringLiteral("111"), QStringLiteral("112"), QStringLiteral("112"), QStringLiteral("112"), QStringLiteral("114"),
    QStringLiteral("118"), QStringLiteral("121"), QStringLiteral("122"), QStringLiteral("123"), QStringLiteral("125"),
    QStringLiteral("127"), QStringLiteral("128"), QStringLiteral("134"), QStringLiteral("136"), QStringLiteral("139"),
    QStringLiteral("143"), QStringLiteral("148"), QStringLiteral("153"), QStringLiteral("153"), QStringLiteral("158"),
    QStringLiteral("163"), QStringLiteral("171"),
};
} // namespace

PlacardViewController::PlacardViewController(QObject* parent)
    : QAbstractListModel(parent), placardImages(kImages), guideRefs(kGuides)
{
}

int PlacardViewController::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(placardImages.size());
}

QVariant PlacardViewController::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    if (!index.isValid() || row < 0 || row >= placardImages.size())
        return {};
    switch (role) {
    case ImageRole:
        return placardImages.at(row);
    case ImageUrlRole:
        return QUrl::fromLocalFile(Resources::path(placardImages.at(row))).toString();
    case GuideIdRole:
        return guideRefs.value(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> PlacardViewController::roleNames() const
{
    return { { ImageRole, "image" }, { ImageUrlRole, "imageUrl" }, { GuideIdRole, "guideId" } };
}

QString PlacardViewController::title() const
{
    return L::tr("Placards");
}

QString PlacardViewController::sectionHeader() const
{
    return L::tr("Table of markings, labels and placards and initial response guide to use on-scene. USE THIS TABLE "
                 "ONLY IF MATERIALS CANNOT BE SPECIFICALLY IDENTIFIED BY USING THE SHIPPING DOCUMENT, NUMBERED "
                 "PLACARD, OR ORANGE PANEL NUMBER");
}

QString PlacardViewController::selectRow(int row)
{
    const QString ref = guideRefs.value(row);
    if (ref.isEmpty())
        return {};
    QORModel* model = QORModel::sharedInstance();
    // The guide list arrives with the guide page builder; a tap can come first.
    if (model->guides.isEmpty())
        model->loadGuideList();
    for (const GuidePtr& guide : std::as_const(model->guides)) {
        if (guide && guide->guideId == ref) {
            GuideViewFactory::sharedInstance()->loadGuides({ guide });
            emit guideRequested(ref);
            return ref;
        }
    }
    qWarning("placards: no guide %s in the data pack", qPrintable(ref));
    return {};
}

} // namespace qor
