#include "XmlText.h"

namespace qor::import::xml {

namespace {
void collect(const xmlNode* n, const std::function<bool(const xmlNode*)>& skip, QString* out)
{
    for (const xmlNode* c = n->children; c; c = c->next) {
        if (c->type == XML_TEXT_NODE || c->type == XML_CDATA_SECTION_NODE) {
            *out += QString::fromUtf8(reinterpret_cast<const char*>(c->content));
        } else if (c->type == XML_ELEMENT_NODE) {
            if (skip && skip(c))
                continue;
            if (name(c).compare(QLatin1String("br"), Qt::CaseInsensitive) == 0)
                *out += QLatin1Char(' ');
            else
                collect(c, skip, out);
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
