// Chemistry lookups on the chemistry database: pocket guide, CAMEO, WISER,
// GHS and NFPA records. Each query runs at most once per material (NFPA
// excepted); an empty result is cached like any other.
#include "QueryText.h"

#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

namespace {

QString npgSql(const QString& columns, const Material& material)
{
    return QStringLiteral("select %1 from npg_guides, unid_npgid where un_number = %2 and id = npgid").arg(columns, sqlBareUnId(material.unId));
}

// The pocket guide's response cells, for the protection tab: whole texts,
// and the protection and first-aid lines ("Skin: ...") under their own keys.
void addResponseCells(const Database& db, const QString& id, StringMap* map)
{
    Statement st(db, QStringLiteral("select exposure_routes, symptoms, target_organs, cancer_site, personal_protection, "
                                    "first_aid from npg_guides where id = '%1'").arg(sqlQuoted(id)));
    if (!st.step())
        return;
    static const char* const wholeKeys[] = { "exposureRoutes", "symptoms", "targetOrgans", "cancerSite", "personalProtection", "firstAid" };
    for (int column = 0; column < 6; ++column)
        if (!st.text(column).isEmpty())
            map->insert(QLatin1String(wholeKeys[column]), st.text(column));
    static const QHash<QString, QString> lineKeys = {
        { "Skin", "skinProtect" }, { "Eyes", "eyeProtect" }, { "Wash skin", "washSkinProtect" }, { "Remove", "removeProtect" },
        { "Change", "changeProtect" }, { "Provide", "provideProtect" },  // personal protection
        { "Eye", "eyeFA" }, { "Skin FA", "skinFA" }, { "Breathing", "breathingFA" }, { "Swallow", "swallowFA" },  // first aid
    };
    for (int column : { 4, 5 })
        for (const QString& line : st.text(column).split(QLatin1Char('\n'))) {
            const qsizetype colon = line.indexOf(QLatin1Char(':'));
            if (colon <= 0)
                continue;
            QString label = line.left(colon).trimmed();
            if (column == 5 && label == QLatin1String("Skin"))
                label = QStringLiteral("Skin FA");
            const QString key = lineKeys.value(label);
            if (!key.isEmpty())
                map->insert(key, line.mid(colon + 1).trimmed());
        }
}

} // namespace

StringMap QORModel::getNPGCasNumbersForMaterial(Material& material)
{
    return cachedLookup(material.casNumbers, [&] {
        StringMap map;
        Statement st(m_npgDb, npgSql(QStringLiteral("name, cas_no "), material));
        while (st.step())
            map.insert(st.text(1), st.text(0));
        return map;
    });
}

StringMap QORModel::getNPGAttributesForMaterial(Material& material)
{
    return cachedLookup(material.npgAttributes, [&] {
        StringMap map;
        Statement st(m_npgDb, npgSql(QStringLiteral("id, name, cas_no, formula, rtec_no, synonyms , dot , niosh_exp_limit , "
                                                    "osha_exp_limit , idlh , conversion , phys_desc , mw , bp , mlt_frz , sol , "
                                                    "vp , ip , rgasd , spgr , flp , uel , lel , mec , flammability , incomp , "
                                                    "meas_meth , icsc "),
                                     material));
        if (st.step()) {
            const QString id = st.text(0);
            material.npgIndex = leadingInt(id);
            map.insert(QStringLiteral("NPGName"), capitalized(st.text(1)));
            material.casNo = st.text(2);
            const QString formula = st.text(3);
            map.insert(QStringLiteral("formula"), formula);
            map.insert(QStringLiteral("htmlFormula"), unicodeFormula(formula));
            material.rtecNo = st.text(4);
            // Columns 5 to 23 go across unchanged.
            static const char* const plainKeys[] = { "syn", "dot", "nioshExpLimit", "oshaExpLimit", "idlhLimit", "conv", "physDesc",
                                                     "mw", "bp", "mlt", "sol", "vp", "ip", "rgasd", "spgr", "flp", "uel", "lel", "mec" };
            int column = 5;
            for (const char* key : plainKeys)
                map.insert(QLatin1String(key), st.text(column++));
            // The source text carries a degree sign mis-decoded as three characters.
            QString flammability = st.text(24);
            flammability.replace(QStringLiteral(u"\u00E2\u02C6\u017EF"), QStringLiteral(u"\u00B0F"));
            map.insert(QStringLiteral("flamability"), flammability);
            map.insert(QStringLiteral("incomp"), st.text(25));
            map.insert(QStringLiteral("measmeth"), st.text(26));
            const QString icsc = st.text(27);
            map.insert(QStringLiteral("icsccardno"), icsc);

            addResponseCells(m_npgDb, id, &map);

            // The URL is a placeholder: the screen opens the document by type.
            material.otherResources.clear();
            if (!icsc.isEmpty())
                material.otherResources.append({ fillFormat(L::tr("International Chemical Safety Card for %@"), { material.name }),
                                                 QStringLiteral("file:///1.pdf"), QStringLiteral("ICSC") });
            if (!id.isEmpty())
                material.otherResources.append({ fillFormat(L::tr("NIOSH Pocket Guide for %@"), { material.name }),
                                                 QStringLiteral("file:///1.pdf"), QStringLiteral("NPG") });
        }
        return map;
    });
}

StringMap QORModel::getCameoAttributesForMaterial(Material& material)
{
    return cachedLookup(material.cameoAttributes, [&] {
        StringMap map;
        // CAMEO keeps its names in upper case.
        Statement st(m_npgDb, QStringLiteral("select cameo_id, name, cas_no, un_id, description, formula, health_haz from cameo "
                                             "where un_id = %1 and name = '%2'")
                                  .arg(sqlBareUnId(material.unId), sqlQuoted(material.name.toUpper())));
        if (st.step()) {
            map.insert(QStringLiteral("CameoName"), capitalized(st.text(1)));
            material.casNo = st.text(2);
            map.insert(QStringLiteral("physDesc"), st.text(4));
            const QString formula = st.text(5);
            map.insert(QStringLiteral("formula"), formula);
            map.insert(QStringLiteral("htmlFormula"), unicodeFormula(formula));
            QString hazard = paragraphsToLines(st.text(6));
            hazard.replace(QLatin1String("; ; "), QLatin1String(";\n\n"));
            map.insert(QStringLiteral("CameoHazardText"), hazard);
        }
        return map;
    });
}

StringMap QORModel::getWiserAttributesForMaterial(Material& material)
{
    return cachedLookup(material.wiserAttributes, [&] {
        StringMap map;
        Statement st(m_npgDb, QStringLiteral("select type, description  from wiser_text where un_id = %1").arg(sqlBareUnId(material.unId)));
        while (st.step()) {
            QString text = paragraphsToLines(st.text(1));
            text.replace(QLatin1String("; "), QLatin1String("\n\n"));
            map.insert(st.text(0) == QLatin1String("USE") ? QStringLiteral("USE") : QStringLiteral("EXP"), text);
        }
        return map;
    });
}

StringMap QORModel::getGHSAttributesForMaterial(Material& material)
{
    return cachedLookup(material.ghsAttributes, [&] {
        StringMap map;
        // Keyed on whatever CAS number the NPG or CAMEO lookups left on the material.
        Statement st(m_npgDb, QStringLiteral("select  pictograms, hazard_statements  from ghs where cas_no = '%1' ").arg(sqlQuoted(material.casNo)));
        if (st.step()) {
            map.insert(QStringLiteral("GHSPictograms"), st.text(0));
            map.insert(QStringLiteral("GHSHazStatementsKey"), st.text(1));
        }
        return map;
    });
}

std::optional<StringMap> QORModel::nfpaForMaterial(Material& material)
{
    // The table's names are English; elsewhere the UN id alone has to do.
    const bool english = Preferences::firstPreferredLanguage().startsWith(QLatin1String("en"));
    const QString sql = english
        ? QStringLiteral("select un_id, health, fire, risk, other from nfpa where un_id = '%1' and name = '%2' ")
              .arg(sqlQuoted(material.unId), sqlQuoted(material.name))
        : QStringLiteral("select un_id, health, fire, risk, other from nfpa where un_id = '%1' ").arg(sqlQuoted(material.unId));
    std::optional<StringMap> result;
    Statement st(m_npgDb, sql);
    while (st.step()) {
        result = StringMap{ { QStringLiteral("health"), st.text(1) },
                            { QStringLiteral("fire"), st.text(2) },
                            { QStringLiteral("risk"), st.text(3) },
                            { QStringLiteral("other"), st.text(4) } };
    }
    return result;
}

QString QORModel::unicodeFormula(const QString& formula) const
{
    QString out;
    out.reserve(formula.size());
    for (const QChar c : formula) {
        const char16_t u = c.unicode();
        if (u >= u'0' && u <= u'9') {
            const int digit = u - u'0';
            out += digit < subscriptChars.size() ? subscriptChars.at(digit) : QString(QChar(char16_t(0x2080 + digit)));
        } else {
            out += c;
        }
    }
    return out;
}

} // namespace qor
