#include "SearchByIdController.h"

#include "MaterialRows.h"
#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

SearchByIdController::SearchByIdController(QObject* parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(50);
    connect(&m_timer, &QTimer::timeout, this, &SearchByIdController::searchNow);
    connect(QORModel::sharedInstance(), &QORModel::modelLoadingStateChanged, this, [this] {
        m_lastSearchText.clear();
        if (complete())
            searchNow();
    });
}

void SearchByIdController::setText(const QString& input)
{
    QString digits;
    for (QChar c : input)
        if (c.isDigit())
            digits.append(c);
    const QString text = digits.left(4);  // a fifth digit leaves the first four
    const bool changed = text != m_text;
    m_text = text;
    if (changed || text != input)
        emit textChanged();
    if (!complete()) {
        setMaterial(nullptr);
        if (!m_text.isEmpty())
            m_timer.start();
        return;
    }
    m_timer.stop();
    searchNow();
}

void SearchByIdController::searchNow()
{
    m_timer.stop();
    if (m_text.size() < 4 || m_text == m_lastSearchText)
        return;
    m_lastSearchText = m_text;
    ++m_searchCount;
    QORModel* model = QORModel::sharedInstance();
    MaterialPtr found;
    for (const auto& m : std::as_const(model->materials()))
        if (m->unId == m_text) {
            found = m;
            break;
        }
    if (found) {
        setMaterial(found);
        return;
    }
    // Explosives are in the index by division only: lead to that row.
    MaterialPtr shipped = model->shippingTableMaterial(m_text);
    MaterialPtr row = shipped ? model->guidebookRowForClass(model->classForMaterial(*shipped)) : nullptr;
    setMaterial(row, row ? shipped : nullptr);
}

void SearchByIdController::clear()
{
    setText(QString());
}

void SearchByIdController::setMaterial(MaterialPtr m, MaterialPtr shipped)
{
    if (m == m_material.ptr && shipped == m_shipped)
        return;
    m_material = MaterialRef(std::move(m));
    m_shipped = std::move(shipped);
    emit materialChanged();
}

QString SearchByIdController::placardImage() const
{
    return shown() ? placardImageForMaterial(*QORModel::sharedInstance(), *shown()) : QString();
}

QString SearchByIdController::name() const
{
    return shown() ? shown()->name : QString();
}

QString SearchByIdController::hazardClass() const
{
    return shown() ? QORModel::sharedInstance()->classForMaterial(*shown()) : QString();
}

QString SearchByIdController::classDescription() const
{
    return shown() ? QORModel::sharedInstance()->classDescriptionForMaterial(*shown()).value_or(QString()) : QString();
}

QString SearchByIdController::unIdText() const
{
    return shown() ? L::tr("UN%1").arg(shown()->unId) : QString();
}

QString SearchByIdController::rowText() const
{
    if (!m_material.ptr)
        return QString();
    if (m_shipped)
        return L::tr("%1 (guide %2)").arg(m_material.ptr->name, m_material.ptr->guideId);
    return m_material.ptr->name + QStringLiteral("   ") + L::tr("UN%1").arg(m_material.ptr->unId);
}

QString SearchByIdController::note() const
{
    return m_shipped ? L::tr("The guidebook's index lists this explosive by its division only.") : QString();
}

} // namespace qor
