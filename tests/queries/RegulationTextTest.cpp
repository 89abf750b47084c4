// 49 CFR 173 pages, provision groups and the provision page factory.
#include "FakePageView.h"
#include "QueriesFixture.h"

#include "model/Device.h"
#include "queries/SpecialProvisions.h"

#include <QSettings>

using namespace qor;

namespace {

struct RegulationText : test::QueriesTest {
    void TearDown() override
    {
        Device::setTablet(false);
        QSettings().remove(QStringLiteral("textFontSize"));
    }
};

} // namespace

TEST_F(RegulationText, SectionListAndNodeConditions)
{
    pack.sql("cfr49.db", "insert into cfr_text values ('173.203','n1','<p>203a</p>',''), ('173.204','n2','<p>204</p>',''),"
                         " ('173.203','n3','<p>203b</p>','');");
    const QString head = QStringLiteral("<html><head>   <meta name = \"viewport\" content = \"width = device-width\"> "
                                        "<style> span.mainheader, span.updatebodytest, a, span.div5head "
                                        "{ display : none !important; } </style> </head> <body> ");
    auto page = [&](const std::optional<QString>& section, const QString& node = QString()) {
        return model().getHTMLTextForCFRSection(section, node);
    };
    EXPECT_EQ(page(QStringLiteral("203")), head + QStringLiteral("<p>203a</p><p>203b</p> </body></html>"));
    EXPECT_EQ(page(QStringLiteral("204,203")), head + QStringLiteral("<p>203a</p><p>204</p><p>203b</p> </body></html>"));
    // Pieces are not trimmed: " 204" names no section.
    EXPECT_EQ(page(QStringLiteral("203, 204")), head + QStringLiteral("<p>203a</p><p>203b</p> </body></html>"));
    EXPECT_EQ(page(std::nullopt, QStringLiteral("n2")), head + QStringLiteral("<p>204</p> </body></html>"));
    // A text the pack lacks gives a page that names it and how to import it, never a blank one.
    const QString missing = page(QStringLiteral("2'03"));
    EXPECT_TRUE(missing.startsWith(head));
    EXPECT_TRUE(missing.contains(QStringLiteral("The text of 49 CFR § 173.2'03 is not in this data pack."))) << missing.toStdString();
    EXPECT_TRUE(page(QStringLiteral("301,302")).contains(QStringLiteral("49 CFR §§ 173.301, 173.302 is not")));
    EXPECT_TRUE(page(std::nullopt, QStringLiteral("n9")).contains(QStringLiteral("49 CFR n9 is not")));

    Device::setTablet(true);
    EXPECT_TRUE(page(QStringLiteral("204")).startsWith(QStringLiteral("<html><head><meta name = 'viewport' content = 'width = 500'>   <meta")));
}

// The groups' titles are constants (the TP group's printed by the provision
// command's test); here, which group a code falls in.
TEST(SpecialProvisionGroups, CodesMapToTheirGroups)
{
    // Two-letter prefixes before their first letter; "I" alone is no group.
    for (const auto& [code, key] : { std::pair{ "IP2", "IP" }, { "TP7", "TP" }, { "T14", "T" }, { "I5", "numeric" } })
        EXPECT_EQ(specialProvisionGroupForCode(QLatin1String(code)).key, QLatin1String(key)) << code;
}

TEST_F(RegulationText, ProvisionPagesCarryTextSizeAndLoadOnlyWhenAllowed)
{
    for (const QString& key : SpecialProvisionsViewFactory::categoryKeys())
        pack.writeFile(key + ".html", "<meta content=\"width = device-width\"><body style=\"background-color: #ffb045\">" + key.toUtf8());
    QSettings().setValue(QStringLiteral("textFontSize"), 150);
    Device::setTablet(true);
    test::FakePageViews views;
    SpecialProvisionsViewFactory factory;
    auto fake = [&](const char* key) { return static_cast<test::FakePageView*>(factory.viewForCategory(key)->pageView()); };
    EXPECT_EQ(factory.viewForCategory("IB")->data,
              "<meta content=\"width = 500\"><body style='background-color: #ffb045; -webkit-text-size-adjust: 150%;'>IB");

    factory.loadCategories(SpecialProvisionsViewFactory::categoryKeys().mid(0, 5));
    EXPECT_EQ(factory.loadingCount(), 3);
    EXPECT_FALSE(factory.hasLoadingTimer());
    EXPECT_EQ(fake("A")->lastBaseUrl.toLocalFile(), pack.dir() + '/');
    // Asking for one page stops the others and hands the rest to the timer.
    factory.loadCategories({ QStringLiteral("A") });
    EXPECT_EQ(factory.loadingCount(), 1);
    EXPECT_EQ(fake("B")->stopCount, 1);
    ASSERT_TRUE(factory.hasLoadingTimer());

    // A jump before the page is there leaves it at its top.
    factory.viewForCategory("A")->showProvision(QStringLiteral("A54"));
    EXPECT_TRUE(fake("A")->scripts.isEmpty());
    fake("A")->finish(false);  // a failed load is tried again
    for (int tick = 0; tick < 20 && factory.hasLoadingTimer(); ++tick) {
        const int before = factory.loadingCount();
        factory.processUnloadedCategories();
        EXPECT_LE(factory.loadingCount(), 3);
        EXPECT_LE(factory.loadingCount() - before, 2);
        for (test::FakePageView* v : views.made)
            if (v != fake("numeric") || tick > 10)
                v->finish();
    }
    EXPECT_FALSE(factory.hasLoadingTimer());
    EXPECT_EQ(factory.unloadedCount(), 0);
    factory.viewForCategory("A")->showProvision(QStringLiteral("A54"));
    EXPECT_EQ(fake("A")->scripts, QStringList{ QStringLiteral("window.location.hash='#A54'") });
    factory.loadSelectedCategory(QStringLiteral("A"));
    EXPECT_EQ(fake("A")->loadCount, 2);
}
