#include "XmlText.h"

#include <QStringList>

namespace qor::import::xml {

namespace {
void collect(const xmlNode* n, const std::function<bool(const xmlNode*)>& skip, QString* out, QChar lineBreak = QLatin1Char(' '))
{
    for (const xmlNode* c = n->children; c; c = c->next) {
        if (c->type == XML_TEXT_NODE || c->type == XML_CDATA_SECTION_NODE) {
            *out += QString::fromUtf8(reinterpret_cast<const char*>(c->content));
        } else if (c->type == XML_ELEMENT_NODE) {
            if (skip && skip(c))
                continue;
            if (name(c).compare(QLatin1String("br"), Qt::CaseInsensitive) == 0)
                *out += lineBreak;
            else
                collect(c, skip, out, lineBreak);
        }
    }
}

bool named(const xmlNode* n, const char* tag)
{
    return n->type == XML_ELEMENT_NODE && name(n).compare(QLatin1String(tag), Qt::CaseInsensitive) == 0;
}

void walk(const xmlNode* n, const char* tag, std::vector<const xmlNode*>* out, bool firstOnly)
{
    for (const xmlNode* c = n->children; c; c = c->next) {
        if (firstOnly && !out->empty())
            return;
        if (named(c, tag))
            out->push_back(c);
        if (c->type == XML_ELEMENT_NODE)
            walk(c, tag, out, firstOnly);
    }
}
} // namespace

QString text(const xmlNode* n, const std::function<bool(const xmlNode*)>& skip)
{
    if (!n)
        return {};
    QString out;
    collect(n, skip, &out);
    // A no-break space is a blank too: the sources use it for empty cells.
    out.replace(QChar(0x00a0), QLatin1Char(' '));
    return out.simplified();
}

QString lines(const xmlNode* n, const std::function<bool(const xmlNode*)>& skip)
{
    if (!n)
        return {};
    QString raw;
    collect(n, skip, &raw, QChar(0x2028));
    QStringList out;
    for (QString line : raw.split(QChar(0x2028))) {
        line.replace(QChar(0x00a0), QLatin1Char(' '));
        line = line.simplified();
        if (!line.isEmpty())
            out << line;
    }
    return out.join(QLatin1Char('\n'));
}

QString rawText(const xmlNode* n)
{
    if (!n)
        return {};
    if (n->type == XML_TEXT_NODE || n->type == XML_CDATA_SECTION_NODE)
        return QString::fromUtf8(reinterpret_cast<const char*>(n->content));
    if (n->type != XML_ELEMENT_NODE)
        return {};
    const QString tag = name(n).toLower();
    if (tag == QLatin1String("br"))
        return QStringLiteral("\n");
    QString out;
    for (const xmlNode* c = n->children; c; c = c->next)
        out += rawText(c);
    if (tag == QLatin1String("p") || tag == QLatin1String("div"))
        out += QLatin1Char('\n');
    return out;
}

std::vector<const xmlNode*> children(const xmlNode* n, const char* tag)
{
    std::vector<const xmlNode*> out;
    for (const xmlNode* c = n ? n->children : nullptr; c; c = c->next)
        if (named(c, tag))
            out.push_back(c);
    return out;
}

const xmlNode* find(const xmlNode* n, const char* tag)
{
    std::vector<const xmlNode*> out;
    if (n)
        walk(n, tag, &out, true);
    return out.empty() ? nullptr : out.front();
}

std::vector<const xmlNode*> findAll(const xmlNode* n, const char* tag)
{
    std::vector<const xmlNode*> out;
    if (n)
        walk(n, tag, &out, false);
    return out;
}

} // namespace qor::import::xml
