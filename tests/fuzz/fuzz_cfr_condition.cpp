// Regulation sections as stored in the shipping table: the where clause built
// from them, run against the regulations database.
// Input: one flag byte (odd: a section is given), then section "\n" node.
#include "FuzzSupport.h"

#include "model/QORModel.h"
#include "queries/RegulationText.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return -1;
    const bool hasSection = data[0] & 1;
    const QString text = QString::fromUtf8(fuzz::bytes(data + 1, size - 1));
    const qsizetype cut = text.indexOf(QLatin1Char('\n'));
    const QString first = cut < 0 ? text : text.left(cut);
    const QString node = cut < 0 ? QString() : text.mid(cut + 1);
    const std::optional<QString> section = hasSection ? std::optional<QString>(first) : std::nullopt;

    (void)cfrCondition(section, node);
    static QORModel* model = new QORModel();
    (void)model->getHTMLTextForCFRSection(section, node);
    return 0;
}
