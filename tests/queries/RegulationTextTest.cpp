// Part 173 pages, provision groups and the provision page factory.
#include "FakePageView.h"
#include "QueriesFixture.h"

#include "model/Device.h"
#include "queries/SpecialProvisions.h"

#include <QSettings>

using namespace qor;

namespace {

const QString kHead = QStringLiteral("<html><head>   <meta name = \"viewport\" content = \"width = device-width\"> "
                                     "<style> span.mainheader, span.updatebodytest, a, span.div5head "
                                     "{ display : none !important; } </style> </head> <body> ");

struct RegulationText : test::QueriesTest {
    void SetUp() override
    {
        pack.sql("cfr49.db", "insert into cfr_text values ('173.203','n1','<p>203a</p>','x'), ('173.204','n2','<p>204</p>','y'),"
                             " ('173.203','n3','<p>203b</p>','x');");
    }
    void TearDown() override { Device::setTablet(false); }
    QString body(const std::optional<QString>& section, const QString& node = QString())
    {
        const QString html = model().getHTMLTextForCFRSection(section, node);
        EXPECT_TRUE(html.startsWith(kHead) && html.endsWith(QStringLiteral(" </body></html>"))) << html.toStdString();
        return html.mid(kHead.size()).chopped(15);
    }
};

} // namespace

TEST_F(RegulationText, SectionListAndNodeConditions)
{
    EXPECT_EQ(body(QStringLiteral("203")), QStringLiteral("<p>203a</p><p>203b</p>"));
    EXPECT_EQ(body(QStringLiteral("204,203")), QStringLiteral("<p>203a</p><p>204</p><p>203b</p>"));
    // Pieces are not trimmed: " 204" names no section.
    EXPECT_EQ(body(QStringLiteral("203, 204")), QStringLiteral("<p>203a</p><p>203b</p>"));
    EXPECT_EQ(body(std::nullopt, QStringLiteral("n2")), QStringLiteral("<p>204</p>"));
    EXPECT_EQ(body(QStringLiteral("999")), QString());
    EXPECT_EQ(body(QStringLiteral("2'03")), QString());
}

TEST_F(RegulationText, TabletGetsAFixedWidthViewport)
{
    Device::setTablet(true);
    EXPECT_TRUE(model().getHTMLTextForCFRSection(QStringLiteral("204"), QString())
                    .startsWith(QStringLiteral("<html><head><meta name = 'viewport' content = 'width = 500'>   <meta")));
}

TEST(SpecialProvisionGroups, CodesMapToTheirGroups)
{
    const struct { const char* code; const char* key; const char* subtitle; const char* title; } cases[] = {
        { "A54", "A", "Aircraft Transportation", "Aircraft" },
        { "B9", "B", "Bulk Packaging", "Bulk Packaging" },
        { "IB3", "IB", "Intermediate Bulk Containers", "IBC" },
        { "IP2", "IP", "Intermediate Bulk Containers", "IBC" },
        { "N34", "N", "Non-Bulk Packaging", "Non-Bulk Packaging" },
        { "TP7", "TP", "IM and UN Specification Portable Tanks", "Portable Tanks" },
        { "T14", "T", "UN Portable Tanks", "UN Portable Tanks" },
        { "W31", "W", "Water Transportation", "Water transport" },
        { "128", "numeric", "", "Numeric Provisions" },
        { "I5", "numeric", "", "Numeric Provisions" },
    };
    for (const auto& c : cases) {
        const SpecialProvisionGroup g = specialProvisionGroupForCode(QLatin1String(c.code));
        EXPECT_EQ(g.key, QLatin1String(c.key)) << c.code;
        EXPECT_EQ(g.listSubtitle, QLatin1String(c.subtitle)) << c.code;
        EXPECT_EQ(g.screenTitle, QLatin1String(c.title)) << c.code;
    }
}

namespace {

struct ProvisionFactory : test::QueriesTest {
    test::FakePageViews views;
    void SetUp() override
    {
        for (const QString& key : SpecialProvisionsViewFactory::categoryKeys())
            pack.writeFile(key + QStringLiteral(".html"),
                           "<meta name=\"viewport\" content=\"width = device-width\"><body style=\"background-color: #ffb045\">"
                           + key.toUtf8());
    }
    void TearDown() override
    {
        QSettings().remove(QStringLiteral("textFontSize"));
        Device::setTablet(false);
    }
    static test::FakePageView* fake(SpecialProvisionsView* v) { return static_cast<test::FakePageView*>(v->pageView()); }
};

} // namespace

TEST_F(ProvisionFactory, PageDataCarriesTextSizeAndTabletWidth)
{
    QSettings().setValue(QStringLiteral("textFontSize"), 150);
    Device::setTablet(true);
    SpecialProvisionsViewFactory factory;
    SpecialProvisionsView* ib = factory.viewForCategory(QStringLiteral("IB"));
    EXPECT_EQ(ib->data, QByteArray("<meta name=\"viewport\" content=\"width = 500\"><body style='background-color: #ffb045; "
                                   "-webkit-text-size-adjust: 150%;'>IB"));
    EXPECT_EQ(ib->pageView()->size(), QSize(500, 600));
    EXPECT_EQ(views.made.size(), 9);
    EXPECT_EQ(factory.loadingCount(), 0);

    factory.loadSelectedCategory(QStringLiteral("IB"));
    EXPECT_EQ(fake(ib)->lastData, ib->data);
    EXPECT_EQ(fake(ib)->lastBaseUrl.toLocalFile(), pack.dir() + QLatin1Char('/'));
}

TEST_F(ProvisionFactory, NeverMoreThanThreeLoadsAndTwoPerTick)
{
    SpecialProvisionsViewFactory factory;
    const QStringList keys = SpecialProvisionsViewFactory::categoryKeys();
    factory.loadCategories(keys.mid(0, 5));
    EXPECT_EQ(factory.loadingCount(), 3);
    EXPECT_FALSE(factory.hasLoadingTimer());

    // Asking for one page stops the others and hands the rest to the timer.
    factory.loadCategories({ QStringLiteral("A") });
    EXPECT_EQ(factory.loadingCount(), 1);
    EXPECT_EQ(fake(factory.viewForCategory(QStringLiteral("B")))->stopCount, 1);
    ASSERT_TRUE(factory.hasLoadingTimer());

    int ticks = 0;
    while (factory.hasLoadingTimer() && ticks++ < 20) {
        const int before = factory.loadingCount();
        factory.processUnloadedCategories();
        EXPECT_LE(factory.loadingCount(), 3);
        EXPECT_LE(factory.loadingCount() - before, 2);
        for (SpecialProvisionsView* v : factory.findChildren<SpecialProvisionsView*>())
            if (v->isLoading() && v->category != QLatin1String("numeric"))
                fake(v)->finish();
    }
    // "numeric" never finishes here, so the timer keeps going until it does.
    EXPECT_EQ(factory.unloadedCount(), 1);
    fake(factory.viewForCategory(QStringLiteral("numeric")))->finish();
    factory.processUnloadedCategories();
    EXPECT_FALSE(factory.hasLoadingTimer());
    for (test::FakePageView* v : views.made)
        EXPECT_LE(v->loadCount, 2) << "only a stopped page loads twice";
}

TEST_F(ProvisionFactory, LoadStateFollowsThePageView)
{
    SpecialProvisionsViewFactory factory;
    SpecialProvisionsView* t = factory.viewForCategory(QStringLiteral("T"));
    factory.loadCategory(QStringLiteral("T"));
    t->showProvision(QStringLiteral("T14"));
    EXPECT_TRUE(fake(t)->scripts.isEmpty()) << "a page still loading opens at its top";

    fake(t)->finish(false);
    EXPECT_FALSE(t->isLoaded() || t->isLoading());
    factory.loadCategory(QStringLiteral("T"));
    fake(t)->finish();
    factory.loadCategory(QStringLiteral("T"));
    EXPECT_EQ(fake(t)->loadCount, 2);
    t->showProvision(QStringLiteral("T14"));
    EXPECT_EQ(fake(t)->scripts, QStringList{ QStringLiteral("window.location.hash='#T14'") });
    EXPECT_EQ(t->provision, QStringLiteral("T14"));
}
