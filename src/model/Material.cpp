#include "Material.h"
#include "QORModel.h"
#include "Resources.h"

namespace qor {

bool Material::carriesIncidentsOfItsNumber() const
{
    return !unId.isEmpty() && carriesIncidentsOfNumber(leadingInt(unId));
}

bool Material::carriesIncidentsOfNumber(int number) const
{
    switch (number) {
    case 1760:
        return name == QLatin1String("Corrosive Liquid, N.O.S.");
    case 2810:
        return name == QLatin1String("Toxic Liquid, Organic, N.O.S.") || name == QLatin1String("Poisonous Liquid, Organic, N.O.S.");
    case 1993:
        return name == QLatin1String("Combustible Liquid, N.O.S.") || name == QLatin1String("Flammable Liquid, N.O.S.");
    default:
        return true;
    }
}

int Material::numIncidents() const
{
    if (!carriesIncidentsOfItsNumber())
        return 0;
    QORModel* model = QORModel::sharedInstance(false);
    if (!model)
        return 0;
    return model->getMaterialsWithIncidents().value(unId, 0);
}

std::optional<QString> Material::attributeForKey(const QString& key)
{
    QORModel* model = QORModel::sharedInstance(false);
    if (!model)
        return std::nullopt;
    // All three run, in this order, whatever the key: GHS keys on the CAS
    // number the CAMEO and NPG lookups leave on the material.
    std::optional<QString> found;
    for (const StringMap& source : { model->getCameoAttributesForMaterial(*this), model->getNPGAttributesForMaterial(*this),
                                     model->getGHSAttributesForMaterial(*this) }) {
        auto it = source.constFind(key);
        if (it != source.cend()) {
            found = *it;
            break;
        }
    }
    if (key == QLatin1String("USE")) {
        const StringMap wiser = model->getWiserAttributesForMaterial(*this);
        auto it = wiser.constFind(key);
        return it == wiser.cend() ? std::nullopt : std::optional<QString>(*it);
    }
    if (found)
        return found;
    if (key == QLatin1String("CameoHazardText")) {
        const StringMap wiser = model->getWiserAttributesForMaterial(*this);
        auto it = wiser.constFind(QStringLiteral("EXP"));
        if (it != wiser.cend())
            return *it;
    }
    return std::nullopt;
}

namespace {
StringMap propertiesFor(Material& m, std::initializer_list<const char*> keys)
{
    StringMap out;
    for (const char* k : keys) {
        const QString key = QString::fromLatin1(k);
        if (auto v = m.attributeForKey(key))
            out.insert(key, *v);
    }
    return out;
}
} // namespace

StringMap Material::protectionProperties()
{
    return propertiesFor(*this, { "skinProtect", "eyeProtect", "washSkinProtect", "changeProtect", "provideProtect" });
}

StringMap Material::firstAidProperties()
{
    return propertiesFor(*this, { "eyeFA", "skinFA", "breathingFA", "swallowFA" });
}

StringMap Material::chemicalProperties()
{
    return propertiesFor(*this, { "mw", "bp", "mlt", "sol", "vp", "ip", "rgasd", "spgr", "flp", "uel", "lel", "mec" });
}

void Material::releaseUnneededMemory()
{
    isolationDistances.reset();
    npgAttributes.reset();
    incidentsSummary.reset();
}

} // namespace qor
