#include "RegulationText.h"

#include "model/Device.h"
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
    return cfrPage(text);
}

} // namespace qor
