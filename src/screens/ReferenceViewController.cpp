#include "ReferenceViewController.h"

#include "AppDelegate.h"
#include "model/Device.h"
#include "model/Resources.h"
#include "pages/InfoViewFactory.h"

namespace qor {

namespace {

struct PageRow {
    const char* page;
    const char* title;
    const char* abbrev;  // null: same as the title
};

QList<ReferencePage> pages(std::initializer_list<PageRow> rows)
{
    QList<ReferencePage> list;
    for (const PageRow& r : rows)
        list.append(ReferencePage(QString::fromLatin1(r.page), L::tr(r.title), L::tr(r.abbrev ? r.abbrev : r.title)));
    return list;
}

const char* const kSectionHeaders[] = {
    QT_TRANSLATE_NOOP("QOR", "QOR Materials"),
    QT_TRANSLATE_NOOP("QOR", "Tables"),
    QT_TRANSLATE_NOOP("QOR", "Resources"),
    QT_TRANSLATE_NOOP("QOR", "Identification and Response"),
    QT_TRANSLATE_NOOP("QOR", "Actions"),
};

} // namespace

ReferenceViewController::ReferenceViewController(QObject* parent)
    : QAbstractListModel(parent),
      materialGroupings{
          ReferenceTable(L::tr("ID Number Index (yellow pages)"), QStringLiteral("A"), 1),
          ReferenceTable(L::tr("Name of Material Index (blue pages)"), QStringLiteral("A")),
      },
      greenTables{
          ReferenceTable(L::tr("[Table 1] Toxic Inhalation Hazard [TIH] Materials"), QStringLiteral("T")),
          ReferenceTable(L::tr("[Table 2] Water-Reactive Materials which produce Toxic Gases"), QStringLiteral("W")),
          ReferenceTable(L::tr("[Table 3] Commonly Encountered Toxic Inhalation Hazard Gases"), QStringLiteral("U")),
      },
      resources(pages({
          { "emergency", QT_TRANSLATE_NOOP("QOR", "Emergency Response Phone Numbers"), QT_TRANSLATE_NOOP("QOR", "Emergency") },
          { "criminal", QT_TRANSLATE_NOOP("QOR", "CRIMINAL/TERRORIST USE OF CHEMICAL/BIOLOGICAL/RADIOLOGICAL AGENTS"),
            QT_TRANSLATE_NOOP("QOR", "CRIMINAL/TERRORIST USE") },
          { "bleve", QT_TRANSLATE_NOOP("QOR", "BLEVE and Heat Induced Tear"), nullptr },
          { "ied_safe_standoff_distance", QT_TRANSLATE_NOOP("QOR", "IED Safe Stand Off Distance"), QT_TRANSLATE_NOOP("QOR", "IED") },
          { "glossary", QT_TRANSLATE_NOOP("QOR", "Glossary"), nullptr },
      })),
      indentification(pages({
          { "howto", QT_TRANSLATE_NOOP("QOR", "HOW TO USE THE GUIDEBOOK"), nullptr },
          { "shippingdocuments", QT_TRANSLATE_NOOP("QOR", "SHIPPING DOCUMENTS (PAPERS)"), QT_TRANSLATE_NOOP("QOR", "SHIPPING") },
          { "clothing", QT_TRANSLATE_NOOP("QOR", "PROTECTIVE CLOTHING"), nullptr },
          { "decon", QT_TRANSLATE_NOOP("QOR", "Decontamination"), nullptr },
          { "hazardclasses", QT_TRANSLATE_NOOP("QOR", "HAZARD CLASSIFICATION SYSTEM"), nullptr },
          { "placards", QT_TRANSLATE_NOOP("QOR", "TABLE OF MARKINGS, LABELS AND PLACARDS"), QT_TRANSLATE_NOOP("QOR", "Placards") },
          { "pipelines", QT_TRANSLATE_NOOP("QOR", "Pipeline Transportation"), QT_TRANSLATE_NOOP("QOR", "Pipelines") },
          { "GHS", QT_TRANSLATE_NOOP("QOR", "GLOBALLY HARMONIZED SYSTEM OF CLASSIFICATION AND LABELING OF CHEMICALS (GHS)"),
            QT_TRANSLATE_NOOP("QOR", "GHS") },
          { "railcar", QT_TRANSLATE_NOOP("QOR", "RAIL CAR IDENTIFICATION CHART"), QT_TRANSLATE_NOOP("QOR", "Rail Cars") },
          { "roadtrailer", QT_TRANSLATE_NOOP("QOR", "ROAD TRAILER IDENTIFICATION CHART"), QT_TRANSLATE_NOOP("QOR", "Road Trailers") },
          { "intermodal", QT_TRANSLATE_NOOP("QOR", "HAZARD IDENTIFICATION NUMBERS DISPLAYED ON SOME INTERMODAL CONTAINERS"),
            QT_TRANSLATE_NOOP("QOR", "Intermodal") },
      })),
      actions(pages({
          { "safetyprecautions", QT_TRANSLATE_NOOP("QOR", "Safety Precautions"), QT_TRANSLATE_NOOP("QOR", "Precautions") },
          { "protectiveactions", QT_TRANSLATE_NOOP("QOR", "Protective Actions"), nullptr },
          { "factors", QT_TRANSLATE_NOOP("QOR", "Protective Action Decision Factors to Consider"),
            QT_TRANSLATE_NOOP("QOR", "Protective Action") },
          { "whotocall", QT_TRANSLATE_NOOP("QOR", "NOTIFICATION AND REQUEST FOR TECHNICAL INFORMATION"),
            QT_TRANSLATE_NOOP("QOR", "NOTIFICATION") },
          { "control", QT_TRANSLATE_NOOP("QOR", "FIRE AND SPILL CONTROL"), QT_TRANSLATE_NOOP("QOR", "CONTROL") },
          { "battery", QT_TRANSLATE_NOOP("QOR", "CONSIDERATIONS FOR LITHIUM BATTERY AND ELECTRIC VEHICLE (EV) FIRES"),
            QT_TRANSLATE_NOOP("QOR", "LITHIUM BATTERY FIRES") },
      }))
{
}

const QList<ReferencePage>* ReferenceViewController::pagesOfSection(int section) const
{
    switch (section) {
    case ResourcesSection:
        return &resources;
    case IdentificationSection:
        return &indentification;
    case ActionsSection:
        return &actions;
    default:
        return nullptr;
    }
}

int ReferenceViewController::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return int(materialGroupings.size() + greenTables.size() + resources.size() + indentification.size() + actions.size());
}

int ReferenceViewController::sectionOf(int row) const
{
    const qsizetype sizes[] = { materialGroupings.size(), greenTables.size(), resources.size(), indentification.size(),
                                actions.size() };
    if (row < 0)
        return -1;
    for (int s = 0; s < SectionCount; ++s) {
        if (row < sizes[s])
            return s;
        row -= int(sizes[s]);
    }
    return -1;
}

int ReferenceViewController::rowInSection(int row) const
{
    const int section = sectionOf(row);
    if (section < 0)
        return -1;
    const qsizetype sizes[] = { materialGroupings.size(), greenTables.size(), resources.size(), indentification.size() };
    for (int s = 0; s < section; ++s)
        row -= int(sizes[s]);
    return row;
}

const ReferencePage* ReferenceViewController::pageAt(int row) const
{
    const QList<ReferencePage>* list = pagesOfSection(sectionOf(row));
    return list ? &list->at(rowInSection(row)) : nullptr;
}

QString ReferenceViewController::title() const
{
    return L::tr("Reference");
}

QString ReferenceViewController::sectionHeader(int section) const
{
    return section >= 0 && section < SectionCount ? L::tr(kSectionHeaders[section]) : QString();
}

QColor ReferenceViewController::rowColor(int row, bool dark) const
{
    switch (sectionOf(row)) {
    case MaterialsSection: {
        const int sort = materialGroupings.at(rowInSection(row)).sort;
        if (sort == 1)
            return QColor::fromRgbF(1.0, 247 / 255.0, 0, 0.15);
        if (sort == 3)
            return QColor::fromRgbF(1.0, 176 / 255.0, 69 / 255.0, 0.15);
        return QColor::fromHsvF(0.586f, 0.38f, 0.6f, 0.15f);
    }
    case TablesSection:
        return dark ? QColor(105, 137, 105) : QColor(156, 188, 156);
    default:
        return QColor(Qt::transparent);
    }
}

QVariant ReferenceViewController::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    const int section = sectionOf(row);
    if (!index.isValid() || section < 0)
        return {};
    const int r = rowInSection(row);
    switch (role) {
    case TitleRole:
        if (section == MaterialsSection)
            return materialGroupings.at(r).title;
        if (section == TablesSection)
            return greenTables.at(r).title;
        return pageAt(row)->title;
    case SubtitleRole:
        // Counted by position, whatever the title says.
        return section == TablesSection ? L::tr("[Table %1]").arg(r + 1) : QString();
    case SectionRole:
        return sectionHeader(section);
    case SectionNumberRole:
        return section;
    case RowColorRole:
        return rowColor(row, false);
    case DarkRowColorRole:
        return rowColor(row, true);
    case PageRole:
        return section >= ResourcesSection ? pageAt(row)->page : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> ReferenceViewController::roleNames() const
{
    return { { TitleRole, "title" },       { SubtitleRole, "subtitle" },           { SectionRole, "section" },
             { SectionNumberRole, "sectionNumber" }, { RowColorRole, "rowColor" }, { DarkRowColorRole, "darkRowColor" },
             { PageRole, "page" } };
}

void ReferenceViewController::selectRow(int row)
{
    const int section = sectionOf(row);
    if (section < 0)
        return;
    QORAppDelegate* app = QORAppDelegate::sharedInstance();
    if (section == MaterialsSection) {
        app->showAllMaterialsWithSort(materialGroupings.at(rowInSection(row)).sort);
        return;
    }
    if (section == TablesSection) {
        app->showFilteredListForCategory(greenTables.at(rowInSection(row)).abbrev);
        return;
    }
    const ReferencePage* p = pageAt(row);
    InfoViewFactory::sharedInstance()->loadPage(p->page);
    emit pageRequested(p->page, p->title, p->abbrev != L::tr("HOW TO USE THE GUIDEBOOK"), Device::isTablet());
}

} // namespace qor
