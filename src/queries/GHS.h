#pragma once
// GHS hazard classes and the categories of each that carry a pictogram.
#include <QMap>
#include <QString>
#include <QStringList>

namespace qor {

class GHS {
public:
    using ClassTable = QMap<QString, QStringList>;

    static const GHS& sharedInstance();

    // Pictograms for a hazard-class description; none are derived yet.
    static QStringList getPictograms(const QString& hazardClasses);

    const ClassTable flamePictogram;
    const ClassTable flameOverCirclePictogram;
    // Holds the oxidizer entries as shipped; kept as data.
    const ClassTable gasCylinderPictogram;
    const ClassTable corrosionPictogram;
    const ClassTable explodingPictogram;
    const ClassTable skullAndCrossbonesPictogram;
    const ClassTable healthHazardPictogram;
    const ClassTable exclamationMarkPictogram;
    const ClassTable biohazardousPictogram;

private:
    GHS();
};

} // namespace qor
