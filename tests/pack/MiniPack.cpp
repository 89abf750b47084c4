#include "MiniPack.h"

#include "model/PackSchema.h"

#include <QFile>

namespace qor::test {

namespace {
QByteArray page(const QString& title, const QString& body = QString())
{
    return QStringLiteral("<html><head><link rel=\"stylesheet\" href=\"base.css\"><style>##STYLE##</style></head>"
                          "<body style=\"background-color: #ffb045\"><h1>%1</h1>%2</body></html>")
        .arg(title, body)
        .toUtf8();
}
} // namespace

MiniPack::MiniPack()
{
    setMaterials({ "ACETONE^3^127^1090^^^", "AMMONIA, ANHYDROUS^2.2^125^1005^X^^", "2-CHLOROPROPANE^3^129^2356^^^" });
    setGuides({ "125^Gases - Corrosive", "127^Flammable Liquids (Water-Miscible)", "129^Flammable Liquids (Water-Miscible / Noxious)" });
    for (const char* g : { "125", "127", "129" })
        writeFile(QString::fromLatin1(g) + QStringLiteral(".html"), page(QStringLiteral("Guide ") + QLatin1String(g)));
    for (const QString& name : packInfoPages() + packOtherPages() + specialProvisionPages())
        writeFile(name + QStringLiteral(".html"), page(name));
    writeFile(QStringLiteral("sendEmailBody.html"), "<p>{ideviceName} {description}</p>");
    writeFile(QStringLiteral("IB.html"), page(QStringLiteral("IB"), QStringLiteral("<a name=\"IB2\"></a>")));
    writeFile(QStringLiteral("T.html"), page(QStringLiteral("T"), QStringLiteral("<div id=\"T4\"></div>")));
    writeFile(QStringLiteral("TP.html"), page(QStringLiteral("TP"), QStringLiteral("<div id='TP1'></div>")));
    for (const char* css : { "base.css", "dark.css", "emailbase.css" })
        writeFile(QString::fromLatin1(css), "body {}");
    QStringList art = packSortImages() + packOtherArtwork();
    for (const QString& key : packPlacardKeys() + packGhsPictograms())
        art << key + QStringLiteral(".pdf");
    for (const QString& name : art)
        writeFile(name, "artwork");

    sql(QStringLiteral("npg.db"), QStringLiteral(
        "insert into iso_distances values ('1005',NULL,'30','100','0.1','0.1','0.2','0.1','300','1000','1.6','1.0','11+','7+');"
        "insert into hmt values ('1090','Acetone','','3','II','3','IB2, T4, TP1','150','202','242','5 L','60 L','B','','');"
        "insert into hmt_sections values ('202','Non-bulk packagings'); insert into hmt_sections values ('242','Bulk packagings');"
        "insert into ghs values ('67-64-1','GHS02,Dgr','H225: Highly flammable liquid and vapor');"
        "insert into dot_placards values ('1090','3');"));
    sql(QStringLiteral("cfr49.db"), QStringLiteral("insert into cfr_text values ('173.202','n1','<p>a</p>','s');"
                                                   "insert into cfr_text values ('173.242','n2','<p>b</p>','s');"));
    sql(QStringLiteral("hazmat_incidents.dat"),
        QStringLiteral("insert into incidents values ('S-1','1090','2025-01-01','Highway','N','N','N','N','N','N','N');"));
    seal();
}

void MiniPack::seal()
{
    writeManifest();
}

void MiniPack::removeFile(const QString& name)
{
    QFile::remove(path(name));
}

QStringList describe(const QList<cli::Violation>& violations)
{
    QStringList out;
    for (const auto& v : violations)
        out << v.toString();
    return out;
}

bool reports(const QList<cli::Violation>& violations, const QString& file, const QString& text, int line)
{
    for (const auto& v : violations)
        if (v.file == file && v.reason.contains(text) && (line < 0 || v.line == line))
            return true;
    return false;
}

} // namespace qor::test
