#pragma once

#include <QList>
#include <QString>

namespace quillfen {

/// An entry of the open-window registry.
class COpenWindow
{
public:
    QString Caption() const { return m_caption; }
    void setCaption(const QString& caption) { m_caption = caption; }
    QString Key() const { return m_key; }
    void setKey(const QString& key) { m_key = key; }

private:
    QString m_caption;
    QString m_key;
};

/// The forms that are open, in the order in which they were opened.
class COpenWindows
{
public:
    /// Adds a form by its navigator key; its caption is the key as it is shown.
    void Add(const QString& key);

    /// The entry at a place counted from 1.
    const COpenWindow& Item(qsizetype place) const { return m_entries.at(place - 1); }
    qsizetype Count() const { return m_entries.size(); }
    void Remove(qsizetype place) { m_entries.removeAt(place - 1); }

    bool contains(const QString& key) const;

    /// Removes the first entry of this caption, blanks apart.
    void removeCaption(const QString& caption);

    auto begin() const { return m_entries.begin(); }
    auto end() const { return m_entries.end(); }

private:
    QList<COpenWindow> m_entries;
};

/// Whether two captions are the same but for their blanks.
bool sameCaption(const QString& one, const QString& other);

} // namespace quillfen
