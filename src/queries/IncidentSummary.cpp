// The incident paragraph of the detail screen, from the incidents database.
#include "QueryText.h"

#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

void QORModel::addCount(QHash<QString, int>& counts, const QString& amountToAdd, const QString& key)
{
    const int amount = leadingInt(amountToAdd);
    if (amount == 0)
        return;
    counts.insert(key, counts.value(key, 0) + amount);
}

QString QORModel::incidentsSummaryForMaterial(Material& material)
{
    if (material.incidentsSummary)
        return *material.incidentsSummary;
    // Deliberately without a full stop, and not cached.
    if (!material.carriesIncidentsOfItsNumber())
        return L::tr("There were no incidents reported to the National Response Center (NRC) in the last 12 months");

    QHash<QString, int> counts;
    static const char* const flagKeys[] = { "seriousIncident", "bulkRelease", "evac", "fatality",
                                            "majorArtery", "marinePollutant", "radioactive" };
    Statement st(m_incidentsDb,
                 QStringLiteral("select count(*), Mode_of_Transportation, HMIS_Serious_Incident_Ind, HMIS_Serious_Bulk_Release, "
                                "HMIS_Serious_Evacuations, HMIS_Serious_Fatality, HMIS_Serious_Major_Artery, "
                                "HMIS_Serious_Marine_Pollutant, HMIS_Serious_Radioactive from incidents where un_id = '%1' "
                                "group by Mode_of_Transportation, HMIS_Serious_Incident_Ind, HMIS_Serious_Bulk_Release, "
                                "HMIS_Serious_Evacuations, HMIS_Serious_Fatality, HMIS_Serious_Major_Artery, "
                                "HMIS_Serious_Marine_Pollutant, HMIS_Serious_Radioactive")
                     .arg(sqlQuoted(material.unId)));
    while (st.step()) {
        const QString groupCount = st.text(0);
        addCount(counts, groupCount, QStringLiteral("totalNumIncidents"));
        addCount(counts, groupCount, st.text(1));
        for (int i = 0; i < 7; ++i)
            if (st.text(2 + i) == QLatin1String("Y"))
                addCount(counts, groupCount, QLatin1String(flagKeys[i]));
    }

    const int total = counts.value(QStringLiteral("totalNumIncidents"));
    QString lead;
    if (total == 1)
        lead = L::tr("There was only one incident");
    else if (total == 0)
        lead = L::tr("There were no incidents");
    else
        lead = fillFormat(L::tr("There were %d incidents"), { QString::number(total) });
    const QString period = fillFormat(L::tr("in the last %d months"), { QString::number(12) });
    const QString sentence = fillFormat(L::tr("%@ reported to the National Response Center (NRC) %@."), { lead, period });

    // Marine pollutant, radioactive and per-mode counts are gathered but not told.
    static const struct { const char* key; const char* format; } clauses[] = {
        { "seriousIncident", QT_TRANSLATE_NOOP("QOR", "%@ %d were considered serious.") },
        { "bulkRelease", QT_TRANSLATE_NOOP("QOR", "%@ %d involved bulk releases.") },
        { "evac", QT_TRANSLATE_NOOP("QOR", "%@ %d required an evacuation.") },
        { "fatality", QT_TRANSLATE_NOOP("QOR", "%@ %d had a fatality.") },
        { "majorArtery", QT_TRANSLATE_NOOP("QOR", "%@ %d occurred on a major artery.") },
    };
    QString detail;
    for (const auto& clause : clauses) {
        const int k = counts.value(QLatin1String(clause.key));
        if (k != 0)
            detail = fillFormat(L::tr(clause.format), { detail, QString::number(k) });
    }
    // The leading blank keeps 11 or 21 from turning into "was".
    detail.replace(QLatin1String(" 1 were"), QLatin1String(" 1 was"), Qt::CaseInsensitive);

    material.incidentsSummary = fillFormat(QStringLiteral("%@ %@"), { sentence, detail });
    return *material.incidentsSummary;
}

} // namespace qor
