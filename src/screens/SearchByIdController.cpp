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
    for (const auto& m : std::as_const(model->materials))
        if (m->unId == m_text) {
            found = m;
            break;
        }
    setMaterial(found);
}

void SearchByIdController::clear()
{
    setText(QString());
}

void SearchByIdController::setMaterial(MaterialPtr m)
{
    if (m == m_material.ptr)
        return;
    m_material = MaterialRef(std::move(m));
    emit materialChanged();
}

QString SearchByIdController::placardImage() const
{
    if (!m_material.ptr)
        return QString();
    return placardImageForMaterial(*QORModel::sharedInstance(), *m_material.ptr);
}

QString SearchByIdController::name() const
{
    return m_material.name();
}

QString SearchByIdController::hazardClass() const
{
    return m_material.ptr ? QORModel::sharedInstance()->classForMaterial(*m_material.ptr) : QString();
}

QString SearchByIdController::classDescription() const
{
    return m_material.ptr ? QORModel::sharedInstance()->classDescriptionForMaterial(*m_material.ptr).value_or(QString()) : QString();
}

QString SearchByIdController::unIdText() const
{
    return m_material.ptr ? L::tr("UN%1").arg(m_material.ptr->unId) : QString();
}

} // namespace qor
