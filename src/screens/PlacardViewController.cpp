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
// What each row's drawing shows, for the row's label and screen readers.
const QStringList kNames = {
    QStringLiteral("Dangerous"),          QStringLiteral("Division 1.1"),        QStringLiteral("Division 1.2"),
    QStringLiteral("Divisions 1.3, 1.5"), QStringLiteral("Divisions 1.4, 1.6"),  QStringLiteral("Division 2.1"),
    QStringLiteral("Division 2.2"),       QStringLiteral("Oxygen"),              QStringLiteral("Division 2.3"),
    QStringLiteral("Division 2.3, Class 8"), QStringLiteral("Class 3"),          QStringLiteral("Combustible"),
    QStringLiteral("Division 4.1"),       QStringLiteral("Division 4.2"),        QStringLiteral("Division 4.3"),
    QStringLiteral("Division 5.1"),       QStringLiteral("Division 5.2"),        QStringLiteral("Division 6.1"),
    QStringLiteral("Class 8"),            QStringLiteral("Division 6.2"),        QStringLiteral("Class 7"),
    QStringLiteral("Class 9"),
};
} // namespace

PlacardViewController::PlacardViewController(QObject* parent)
    : QAbstractListModel(parent), placardImages(kImages), placardNames(kNames)
{
    // The guidebook's chart of which guide each placard leads to is not in
    // the pack, so no row names a guide: guideRefs stays empty.
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
    case NameRole:
        return placardNames.value(row);
    case GuideIdRole:
        return guideRefs.value(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> PlacardViewController::roleNames() const
{
    return { { ImageRole, "image" }, { ImageUrlRole, "imageUrl" }, { NameRole, "name" }, { GuideIdRole, "guideId" } };
}

QString PlacardViewController::title() const
{
    return L::tr("Placards");
}

QString PlacardViewController::sectionHeader() const
{
    return L::tr("Table of markings, labels and placards");
}

QString PlacardViewController::chartNotice() const
{
    return guideRefs.isEmpty() ? L::tr("The guidebook's placard chart, which names the initial response guide for each "
                                       "placard, is not in this data pack. Identify the material by the shipping "
                                       "document, numbered placard or orange panel number.")
                               : QString();
}

QString PlacardViewController::selectRow(int row)
{
    const QString ref = guideRefs.value(row);
    if (ref.isEmpty())
        return {};
    QORModel* model = QORModel::sharedInstance();
    // The guide list arrives with the guide page builder; a tap can come first.
    if (model->guides().isEmpty())
        model->loadGuideList();
    for (const GuidePtr& guide : std::as_const(model->guides())) {
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
