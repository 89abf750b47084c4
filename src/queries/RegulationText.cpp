#include "RegulationText.h"

#include "model/Device.h"
#include "model/PackSchema.h"
#include "model/QORModel.h"

#include <QStringList>

namespace qor {

QString cfrCondition(const std::optional<QString>& section, const QString& node)
{
    if (!section)
        return QStringLiteral(" where node_id = '%1'").arg(sqlQuoted(node));
    if (!section->contains(QLatin1Char(',')))
        return QStringLiteral(" where section_id = '173.%1'").arg(sqlQuoted(*section));
    QStringList quoted;
    for (const QString& piece : section->split(QLatin1Char(',')))
        quoted << QStringLiteral("'173.%1'").arg(sqlQuoted(piece));
    return QStringLiteral(" where section_id in (") + quoted.join(QLatin1Char(',')) + QLatin1Char(')');
}

QString cfrPage(const QString& body)
{
    // The style hides the source's headers and every link in it.
    QString html = QStringLiteral("<html><head> ")
        + QStringLiteral("  <meta name = \"viewport\" content = \"width = device-width\">") + QLatin1Char(' ')
        + QStringLiteral("<style> span.mainheader, span.updatebodytest, a, span.div5head { display : none !important; } </style>")
        + QStringLiteral(" </head> <body> ") + body + QStringLiteral(" </body></html>");
    if (Device::isTablet())
        html.replace(QStringLiteral("<head>"), QStringLiteral("<head><meta name = 'viewport' content = 'width = 500'>"));
    return html;
}

QString QORModel::getHTMLTextForCFRSection(const std::optional<QString>& section, const QString& node)
{
    QString text;
    Statement st(m_cfrDb, QStringLiteral("select node_text, section_name from cfr_text %1").arg(cfrCondition(section, node)));
    while (st.step())
        text += st.text(0);
    if (text.isEmpty()) {
        // Packs carry part 173 only when a user imported it: say so, and how.
        QStringList sections;
        for (const QString& piece : section.value_or(QString()).split(QLatin1Char(','), Qt::SkipEmptyParts))
            sections << QStringLiteral("173.") + piece.trimmed();
        const QString citation = !section ? QStringLiteral("49 CFR %1").arg(node)
            : sections.size() > 1          ? QStringLiteral("49 CFR §§ %1").arg(sections.join(QStringLiteral(", ")))
                                           : QStringLiteral("49 CFR § 173.%1").arg(section->trimmed());
        text = regulationNotInPackHtml(citation);
    }
    return cfrPage(text);
}

} // namespace qor
