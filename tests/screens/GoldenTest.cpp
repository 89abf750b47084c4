// The detail content of chosen materials and the first rows of the material
// list in every sort order, from the bundled pack, against tests/golden.
// QOR_UPDATE_GOLDEN=1 (the update_golden target) rewrites the files.
#include "FixturePack.h"
#include "GoldenFile.h"

#include "AppLinks.h"
#include "MaterialListController.h"
#include "content/MaterialContent.h"
#include "model/Device.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::matchesGolden;
using qor::test::ModelFixture;

namespace {

const QString kGolden = QStringLiteral(QOR_GOLDEN_DIR);

struct BundledPackGolden : ::testing::Test {
    std::unique_ptr<ModelFixture> fixture;
    QORModel* model = nullptr;
    void SetUp() override
    {
        Resources::setOverride(qor::test::bundledPack());
        Preferences::setLanguageOverride(QStringLiteral("en"));
        Device::setTablet(false);
        fixture = std::make_unique<ModelFixture>();
        model = QORModel::sharedInstance();
        model->loadGuideList();
    }
    void TearDown() override
    {
        fixture.reset();
        Preferences::setLanguageOverride(QString());
        Resources::setOverride(QString());
    }
    MaterialPtr named(const QString& name) const
    {
        for (const auto& m : std::as_const(model->materials()))
            if (m->name == name)
                return m;
        return nullptr;
    }
    static QString text(const QJsonValue& v)
    {
        return QString::fromUtf8(v.isArray() ? QJsonDocument(v.toArray()).toJson() : QJsonDocument(v.toObject()).toJson());
    }
};

} // namespace

TEST_F(BundledPackGolden, DetailContent)
{
    QList<QPair<QString, MaterialPtr>> cases;
    for (int un : { 1005, 1017, 1076, 1746, 1203 })
        cases.append({ QStringLiteral("UN%1").arg(un), firstMaterialWithUnNumber(model->materials(), un) });
    // An explosive the guidebook's index does not list: shown from the shipping table.
    cases.append({ QStringLiteral("UN0004"), model->shippingTableMaterial(QStringLiteral("0004")) });
    // Two names of one number: the n.o.s. entry whose summary gives the
    // number's incident count, and a trade name whose summary does not.
    cases.append({ QStringLiteral("UN1993-nos"), named(QStringLiteral("Flammable Liquid, N.O.S.")) });
    cases.append({ QStringLiteral("UN1993-diesel"), named(QStringLiteral("Diesel Fuel")) });
    // No isolation figures at all.
    cases.append({ QStringLiteral("UN1090"), firstMaterialWithUnNumber(model->materials(), 1090) });

    for (const auto& [name, material] : cases) {
        ASSERT_TRUE(material) << name.toStdString() << " is not in the bundled pack";
        const QJsonObject content = materialContent(*model, *material).toJson();
        EXPECT_TRUE(matchesGolden(kGolden + QStringLiteral("/content/%1.json").arg(name), text(content), "update_golden"));
    }
}

// Each section's first rows as the list shows them, in each sort order.
TEST_F(BundledPackGolden, MaterialListRows)
{
    MaterialListController list;
    list.reload();
    for (int turn = 0; turn < 4; ++turn, list.nextSort()) {
        const int sort = list.sortType();
        // The incidents sort is one long section: its top rows are the point.
        const int perSection = sort == SortIncidents ? 25 : 3;
        auto at = [&](int row, int role) { return list.index(row).data(role).toString(); };
        QJsonArray sections;
        QJsonArray rows;
        for (int row = 0; row < list.rowCount(); ++row) {
            const QString key = at(row, MaterialListController::SectionKeyRole);
            if (row == 0 || key != at(row - 1, MaterialListController::SectionKeyRole)) {
                rows = QJsonArray();
                sections.append(QJsonObject{ { QStringLiteral("key"), key },
                                             { QStringLiteral("title"), at(row, MaterialListController::SectionRole) } });
            }
            if (rows.size() >= perSection)
                continue;
            rows.append(QJsonObject{ { QStringLiteral("name"), at(row, MaterialListController::NameRole) },
                                     { QStringLiteral("unId"), at(row, MaterialListController::UnIdRole) },
                                     { QStringLiteral("guideId"), at(row, MaterialListController::GuideIdRole) },
                                     { QStringLiteral("placardImage"), at(row, MaterialListController::PlacardImageRole) },
                                     { QStringLiteral("incidents"), at(row, MaterialListController::IncidentsTextRole) } });
            QJsonObject s = sections.last().toObject();
            s.insert(QStringLiteral("rows"), rows);
            sections.replace(sections.size() - 1, s);
        }
        EXPECT_GT(sections.size(), 0) << "sort " << sort;
        EXPECT_TRUE(matchesGolden(kGolden + QStringLiteral("/lists/materials-sort%1.json").arg(sort), text(sections), "update_golden"));
    }
}
