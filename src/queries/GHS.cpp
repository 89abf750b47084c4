#include "GHS.h"

namespace qor {

namespace {

QStringList categories(std::initializer_list<const char*> suffixes)
{
    QStringList out;
    for (const char* s : suffixes)
        out << QStringLiteral("Category ") + QLatin1String(s);
    return out;
}

QStringList types(std::initializer_list<const char*> suffixes)
{
    QStringList out;
    for (const char* s : suffixes)
        out << QStringLiteral("Type ") + QLatin1String(s);
    return out;
}

GHS::ClassTable oxidizers()
{
    return { { QStringLiteral("oxidizing_gases"), categories({ "1" }) },
             { QStringLiteral("oxidizing_liquids"), categories({ "1", "2", "3" }) },
             { QStringLiteral("oxidizing_solids"), categories({ "1", "2", "3" }) } };
}

} // namespace

GHS::GHS()
    : flamePictogram{ { QStringLiteral("flammable_aerosols"), categories({ "1", "2" }) },
                      { QStringLiteral("flammable_gases"), categories({ "1" }) },
                      { QStringLiteral("flammable_liquids"), categories({ "1", "2", "3" }) },
                      { QStringLiteral("flammable_solids"), categories({ "1", "2" }) },
                      { QStringLiteral("organic_peroxides"), types({ "B", "C", "E", "F" }) },
                      { QStringLiteral("pyrophoric_gases"), categories({ "1" }) },
                      { QStringLiteral("pyrophoric_liquids"), categories({ "1" }) },
                      { QStringLiteral("pyrophoric_solids"), categories({ "1" }) },
                      { QStringLiteral("self_heating"), categories({ "1", "2" }) },
                      { QStringLiteral("self_reactive"), types({ "B", "C", "C", "E", "F" }) },
                      { QStringLiteral("water_reactive"), categories({ "1", "2", "3" }) } },
      flameOverCirclePictogram(oxidizers()),
      gasCylinderPictogram(oxidizers()),
      corrosionPictogram{ { QStringLiteral("corrosive_to_metals"), categories({ "1" }) },
                          { QStringLiteral("eye_damage"), categories({ "1" }) },
                          { QStringLiteral("skin_corrosion"), categories({ "1", "1A", "1B", "1C" }) } },
      explodingPictogram{ { QStringLiteral("organic_peroxides"), types({ "A", "B" }) },
                          { QStringLiteral("self_reactive"), types({ "A", "B" }) } },
      skullAndCrossbonesPictogram{ { QStringLiteral("acute_toxicity_dermal"), categories({ "1", "2", "3" }) },
                                   { QStringLiteral("acute_toxicity_inhalation"), categories({ "1", "2", "3" }) },
                                   { QStringLiteral("acute_toxicity_oral"), categories({ "1", "2", "3" }) } },
      healthHazardPictogram{ { QStringLiteral("aspiration_hazard"), categories({ "1" }) },
                             { QStringLiteral("carcinogenicity"), categories({ "1", "1A", "1B", "2" }) },
                             { QStringLiteral("germ_cell_mutagenicity"), categories({ "1", "1A", "1B", "2" }) },
                             { QStringLiteral("reproductive_toxicity"), categories({ "1", "1A", "1B", "2" }) },
                             { QStringLiteral("skin_sensitization"), categories({ "1", "1A", "1B" }) },
                             { QStringLiteral("specific_target_repeated"), categories({ "1", "2" }) },
                             { QStringLiteral("specific_target_single"), categories({ "1", "2" }) } },
      exclamationMarkPictogram{ { QStringLiteral("acute_toxicity_dermal"), categories({ "4" }) },
                                { QStringLiteral("acute_toxicity_inhalation"), categories({ "4" }) },
                                { QStringLiteral("acute_toxicity_oral"), categories({ "4" }) },
                                { QStringLiteral("eye_damage"), categories({ "2", "2A" }) },
                                { QStringLiteral("resp_sensitization"), categories({ "1", "1A", "1B" }) },
                                { QStringLiteral("skin_corrosion"), categories({ "2" }) },
                                { QStringLiteral("specific_target_single"), categories({ "3" }) } },
      biohazardousPictogram{ { QStringLiteral("biohazardous"), categories({ "1" }) } }
{
}

const GHS& GHS::sharedInstance()
{
    static const GHS instance;
    return instance;
}

QStringList GHS::getPictograms(const QString&)
{
    return {};
}

} // namespace qor
