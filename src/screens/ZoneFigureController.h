#pragma once
// The protective-action zone under the isolation tables: the spill case,
// wind and (for the container gases) container and wind speed chosen by the
// user, the figure as an image, and the incident sheet saved as PDF.
#include "MaterialRef.h"
#include "pages/ProtectiveZone.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace qor {

class ZoneFigureController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qor::MaterialRef material READ material WRITE setMaterial NOTIFY changed)
    Q_PROPERTY(bool large READ large WRITE setLarge NOTIFY changed)
    Q_PROPERTY(bool night READ night WRITE setNight NOTIFY changed)
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY changed)
    Q_PROPERTY(double windFrom READ windFrom WRITE setWindFrom NOTIFY changed)
    Q_PROPERTY(QStringList conditions READ conditions NOTIFY changed)
    Q_PROPERTY(int condition READ condition WRITE setCondition NOTIFY changed)
    Q_PROPERTY(QStringList containers READ containers NOTIFY changed)
    Q_PROPERTY(int container READ container WRITE setContainer NOTIFY changed)
    Q_PROPERTY(QStringList windSpeeds READ windSpeeds CONSTANT)
    Q_PROPERTY(int windSpeed READ windSpeed WRITE setWindSpeed NOTIFY changed)
    Q_PROPERTY(bool usesContainers READ usesContainers NOTIFY changed)
    Q_PROPERTY(bool available READ available NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(int pixelSize READ pixelSize WRITE setPixelSize NOTIFY changed)
    Q_PROPERTY(QString imageSource READ imageSource NOTIFY changed)
    Q_PROPERTY(QString sheetStatus READ sheetStatus NOTIFY sheetStatusChanged)
    Q_PROPERTY(QString sheetPath READ sheetPath NOTIFY sheetStatusChanged)
public:
    explicit ZoneFigureController(QObject* parent = nullptr);

    MaterialRef material() const { return m_material; }
    void setMaterial(const MaterialRef& material);
    bool large() const { return m_options.large; }
    void setLarge(bool v);
    bool night() const { return m_options.night; }
    void setNight(bool v);
    bool dark() const { return m_options.dark; }
    void setDark(bool v);
    double windFrom() const { return m_options.windFromDeg; }
    // Remembered for the next figure, like the units.
    void setWindFrom(double degrees);
    // The compass needle dragged to a point (x right, y down, from the
    // compass centre): the needle points where the wind comes from.
    Q_INVOKABLE void dragNeedleTo(double dx, double dy);
    QStringList conditions() const { return m_conditions; }
    int condition() const { return m_condition; }
    void setCondition(int index);
    QStringList containers() const { return m_containers.keys(); }
    int container() const { return m_options.container; }
    void setContainer(int index);
    static QStringList windSpeeds();
    int windSpeed() const { return m_options.windSpeed; }
    void setWindSpeed(int speed);
    bool usesContainers() const;
    bool available() const { return m_distances.has_value(); }
    QString message() const { return m_message; }
    // The figures in words, for screen readers and the caption.
    QString summary() const;
    int pixelSize() const { return m_pixelSize; }
    void setPixelSize(int px);
    const ZoneOptions& options() const { return m_options; }
    QString svg() const;
    // A PNG data URL of the figure at pixelSize.
    QString imageSource() const;

    // Re-reads the units (switched on the tables) and the figures.
    Q_INVOKABLE void refresh();

    // Writes the incident sheet to dir (Documents when empty) as
    // "UN<id>-incident-sheet.pdf"; sheetStatus says where, or why not.
    Q_INVOKABLE bool saveSheet(const QString& preparedBy = QString(), const QString& dir = QString());
    QString sheetStatus() const { return m_sheetStatus; }
    QString sheetPath() const { return m_sheetPath; }

signals:
    void changed();
    void sheetStatusChanged();

private:
    MaterialRef m_material;
    ZoneOptions m_options;
    QStringList m_conditions;
    int m_condition = 0;
    ProtectiveZone::ContainerRows m_containers;
    std::optional<ZoneDistances> m_distances;
    QString m_message;
    int m_pixelSize = ProtectiveZone::kSize;
    mutable QString m_imageCache;
    QString m_sheetStatus, m_sheetPath;
};

} // namespace qor
