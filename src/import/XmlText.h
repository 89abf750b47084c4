#pragma once
// Small helpers over libxml2 trees shared by the XML and HTML importers.
#include <QString>
#include <functional>
#include <libxml/tree.h>

namespace qor::import::xml {

inline QString name(const xmlNode* n)
{
    return n && n->name ? QString::fromUtf8(reinterpret_cast<const char*>(n->name)) : QString();
}

inline QString attribute(const xmlNode* n, const char* attr)
{
    xmlChar* v = xmlGetProp(n, reinterpret_cast<const xmlChar*>(attr));
    const QString s = v ? QString::fromUtf8(reinterpret_cast<const char*>(v)) : QString();
    xmlFree(v);
    return s;
}

// The text of a node with <br> read as a blank and white space collapsed;
// `skip` leaves out whole elements (and their text).
QString text(const xmlNode* n, const std::function<bool(const xmlNode*)>& skip = {});
// The same with each <br> starting a new line; empty lines are dropped.
QString lines(const xmlNode* n, const std::function<bool(const xmlNode*)>& skip = {});

// The text as it stands, with "\n" for each <br> and after each <p> or <div>.
QString rawText(const xmlNode* n);

// Element children of `n` named `tag` (case-insensitive), in order.
std::vector<const xmlNode*> children(const xmlNode* n, const char* tag);
// The first element below `n` (depth first) with that name, or null.
const xmlNode* find(const xmlNode* n, const char* tag);
// Every element below `n` with that name, in document order.
std::vector<const xmlNode*> findAll(const xmlNode* n, const char* tag);

} // namespace qor::import::xml
