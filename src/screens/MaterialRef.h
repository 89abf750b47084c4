#pragma once
// A material handed to QML and back: QML keeps it as an opaque value and
// passes it to controllers, which get the shared record again.
#include "model/Material.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace qor {

class MaterialRef {
    Q_GADGET
    QML_VALUE_TYPE(materialRef)
    Q_PROPERTY(bool valid READ valid)
    Q_PROPERTY(QString name READ name)
    Q_PROPERTY(QString unId READ unId)
    Q_PROPERTY(QString guideId READ guideId)
public:
    MaterialRef() = default;
    explicit MaterialRef(MaterialPtr m) : ptr(std::move(m)) {}
    bool valid() const { return bool(ptr); }
    QString name() const { return ptr ? ptr->name : QString(); }
    QString unId() const { return ptr ? ptr->unId : QString(); }
    QString guideId() const { return ptr ? ptr->guideId : QString(); }
    bool operator==(const MaterialRef& o) const { return ptr == o.ptr; }

    MaterialPtr ptr;
};

} // namespace qor

Q_DECLARE_METATYPE(qor::MaterialRef)
