#pragma once
// Rows of a sectioned table as QML reads them: one map per row with its
// "kind" and texts; the first row of a section carries the section header.
#include "model/PackManifest.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace qor {

class TableRows {
public:
    // infoPage names the information page behind the header's info button.
    void beginSection(const QString& header = QString(), const QString& infoPage = QString())
    {
        ++m_section;
        m_header = header;
        m_infoPage = infoPage;
        m_sectionStart = true;
        m_sectionRows = 0;
    }
    void add(const QString& kind, QVariantMap fields = QVariantMap())
    {
        fields.insert(QStringLiteral("kind"), kind);
        fields.insert(QStringLiteral("section"), m_section);
        fields.insert(QStringLiteral("sectionStart"), m_sectionStart);
        fields.insert(QStringLiteral("header"), m_sectionStart ? m_header : QString());
        fields.insert(QStringLiteral("infoPage"), m_sectionStart ? m_infoPage : QString());
        m_sectionStart = false;
        ++m_sectionRows;
        m_rows.append(fields);
    }
    // Closes a section with the line naming where its values come from; a
    // section without rows gets none, so no empty section is left behind.
    void addSource(const QStringList& tables, const QString& note = QString())
    {
        if (m_sectionRows == 0)
            return;
        add(QStringLiteral("source"), { { QStringLiteral("text"), PackManifest::sourceLine(tables) },
                                        { QStringLiteral("note"), note } });
    }
    int sectionCount() const { return m_section + 1; }
    const QVariantList& rows() const { return m_rows; }

private:
    QVariantList m_rows;
    QString m_header;
    QString m_infoPage;
    int m_section = -1;
    bool m_sectionStart = false;
    int m_sectionRows = 0;
};

} // namespace qor
