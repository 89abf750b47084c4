#pragma once
// A string-keyed map that remembers the order keys were first inserted in.
// Screens enumerate some maps (isolation conditions) and must show them in a
// stable order; replacing a value keeps the key's original position.
#include <QHash>
#include <QString>
#include <QStringList>

namespace qor {

template <typename V>
class OrderedMap {
public:
    void insert(const QString& key, const V& value)
    {
        auto it = m_values.find(key);
        if (it == m_values.end()) {
            m_keys.append(key);
            m_values.insert(key, value);
        } else {
            *it = value;
        }
    }
    bool contains(const QString& key) const { return m_values.contains(key); }
    V value(const QString& key) const { return m_values.value(key); }
    const V* find(const QString& key) const
    {
        auto it = m_values.constFind(key);
        return it == m_values.cend() ? nullptr : &*it;
    }
    const QStringList& keys() const { return m_keys; }
    qsizetype count() const { return m_keys.size(); }
    bool isEmpty() const { return m_keys.isEmpty(); }
    void clear()
    {
        m_keys.clear();
        m_values.clear();
    }

private:
    QStringList m_keys;
    QHash<QString, V> m_values;
};

} // namespace qor
