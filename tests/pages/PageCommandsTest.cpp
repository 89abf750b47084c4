#include "CliRun.h"
#include "PagesSupport.h"

#include <QFileInfo>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace qor;

namespace {

class PageCommandsTest : public ::testing::Test {
protected:
    PageCommandsTest()
    {
        pack.setGuides({ QStringLiteral("128^Flammable Liquids") });
        pack.writeFile(QStringLiteral("128.html"),
                       "<link href=\"base.css\"><meta content=\"width = device-width\">"
                       "<body style=\"background-color: #ffb045\">Guide 128</body>");
        pack.writeFile(QStringLiteral("glossary.html"), "<link href=\"base.css\"><body style=\"background-color: #ffb045\">");
        test::writePdf(pack.path(QStringLiteral("diamond.pdf")), { QSizeF(100, 50) });
    }

    int run(const QStringList& args)
    {
        const test::CliResult r = test::runCli(args);
        output = r.out;
        return r.code;
    }

    test::UserDataDir data;
    test::FixturePack pack;
    QString output;
};

} // namespace

TEST_F(PageCommandsTest, GuidePageWithEveryOption)
{
    ASSERT_EQ(run({ "guide", "128", "--text-size", "120", "--dark", "--tablet" }), cli::Found);
    EXPECT_TRUE(output.contains(QStringLiteral("-webkit-text-size-adjust: 120%;'>")));
    ASSERT_EQ(run({ "--json", "info", "glossary", "--text-size=80" }), cli::Found);
    EXPECT_TRUE(QJsonDocument::fromJson(output.toUtf8()).object().value("html").toString().contains(QStringLiteral("adjust: 80%")));
}

TEST_F(PageCommandsTest, BadNamesAndOptions)
{
    EXPECT_EQ(run({ "guide", "999" }), cli::NothingFound);
    EXPECT_EQ(run({ "mail-guide", "129" }), cli::NothingFound);
    EXPECT_EQ(run({ "info", "glossary", "--dark" }), cli::UsageError) << "info pages have no dark form";
    EXPECT_EQ(run({ "info", "../128" }), cli::NothingFound);
    EXPECT_EQ(run({ "guide", "128", "--text-size", "big" }), cli::UsageError);
    EXPECT_EQ(run({ "pdf", "diamond.pdf" }), cli::UsageError);
    EXPECT_EQ(run({ "pdf", "diamond.pdf", "--size", "33x33", "--scale", "-1" }), cli::UsageError);
    EXPECT_EQ(run({ "pdf", "nothing.pdf", "--size", "33x33" }), cli::NothingFound);
    EXPECT_EQ(run({ "pdf", "diamond.pdf", "--size", "33x33", "--page", "4" }), cli::NothingFound);
}

TEST_F(PageCommandsTest, PdfRendersOnceThenReadsTheCache)
{
    ASSERT_EQ(run({ "pdf", "diamond.pdf", "--size", "33x33", "--scale", "2" }), cli::Found);

    ASSERT_EQ(run({ "--json", "pdf", "diamond.pdf", "--size", "33x33", "--scale", "2" }), cli::Found);
    const QJsonObject o = QJsonDocument::fromJson(output.toUtf8()).object();
    EXPECT_TRUE(QFileInfo::exists(o.value("path").toString()));
    EXPECT_TRUE(o.value("cached").toBool()) << "the second run reads the cache";
}

