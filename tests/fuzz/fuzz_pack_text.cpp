// The three text files of a pack (materials, guides, descriptions) through
// the model's own loaders, then the filters and guide look-ups built on them.
#include "FuzzSupport.h"

#include "model/QORModel.h"
#include "model/Resources.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray input = fuzz::bytes(data, size);
    if (fuzz::hasSixFieldLine(input))
        return -1;
    for (const char* f : { "chemicals_2024.csv", "guides.csv", "wikipedia_descriptions_by_un_number.csv" })
        fuzz::writeFile(Resources::path(QString::fromLatin1(f)), input);

    QORModel model;
    model.loadMaterials();
    for (const auto& filter : std::as_const(model.filters()))
        model.loadFilterWithData(*filter);
    model.loadGuideList();
    model.loadWikipediaDescriptions();
    for (const auto& m : std::as_const(model.materials())) {
        model.dotGuideForMaterial(m.get());
        (void)m->numIncidents();
    }
    return 0;
}
