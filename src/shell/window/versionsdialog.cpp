#include "shell/window/versionsdialog.h"

#include "shell/kit/listview.h"
#include "shell/kit/longtext.h"
#include "shell/kit/messages.h"
#include "shell/window/differencetext.h"
#include "store/draft.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quillfen {
namespace {

/// The data of a row: the place of its entry, and that of its file in the entry.
constexpr int entryRole = Qt::UserRole;
constexpr int fileRole = Qt::UserRole + 1;

QString shownTime(const std::string& utc)
{
    const auto time = QDateTime::fromString(QString::fromStdString(utc), Qt::ISODate);
    return time.isValid() ? time.toLocalTime().toString("yyyy-MM-dd HH:mm:ss") : QString::fromStdString(utc);
}

QString shownWords(const VersionEntry& entry)
{
    const QString words = shownPart(QString::fromStdString(entry.cause.words));
    return entry.fault.empty() ? words : words + " (damaged: " + QString::fromStdString(entry.fault) + ')';
}

QString counted(std::size_t files)
{
    return files == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(files);
}

std::vector<std::string> pathsOf(const std::vector<StoreChange>& changes)
{
    std::vector<std::string> paths;
    paths.reserve(changes.size());
    for (const StoreChange& change : changes)
        paths.push_back(change.path);
    return paths;
}

} // namespace

VersionsDialog::VersionsDialog(History& history, DraftStore& store, OpenForms forms, QWidget* parent)
    : QDialog(parent),
      m_history(history),
      m_store(store),
      m_forms(std::move(forms)),
      m_entries(new QTreeWidget),
      m_skipped(new QLabel),
      m_difference(new QPlainTextEdit),
      m_file(addBringBack("cmdFile", "Bring back this &file", &VersionsDialog::bringBackFile)),
      m_entry(addBringBack("cmdEntry", "Bring back this &entry", &VersionsDialog::bringBackEntry)),
      m_tree(addBringBack("cmdTree", "Bring back &all as it stood before", &VersionsDialog::bringBackTree))
{
    setObjectName("frmVersions");
    setWindowTitle("Earlier versions");
    place();
    connect(m_entries, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* row) { showFiles(*row); });
    connect(m_entries, &QTreeWidget::currentItemChanged, this, &VersionsDialog::showDifference);
    showEntries();
}

QPushButton* VersionsDialog::addBringBack(const char* name, const QString& caption,
                                          void (VersionsDialog::*pressed)())
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false); // Enter in the list must not bring anything back
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void VersionsDialog::place()
{
    m_entries->setObjectName("tvwVersions");
    m_entries->setAccessibleName("Earlier versions");
    m_entries->setHeaderLabels({"When", "What replaced it"});
    m_entries->setUniformRowHeights(true);
    m_entries->setItemDelegate(new RowDelegate(m_entries));
    m_entries->header()->resizeSection(0, m_entries->fontMetrics().averageCharWidth() * 30);
    m_difference->setObjectName("txtDifference");
    m_difference->setAccessibleName("What differs from today");
    m_difference->setReadOnly(true);
    m_difference->setTabChangesFocus(true);
    m_difference->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_difference->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_skipped->setObjectName("lblSkipped");
    m_skipped->setTextFormat(Qt::PlainText);

    auto* right = new QWidget;
    auto* beside = new QVBoxLayout(right);
    beside->setContentsMargins({});
    beside->addWidget(new QLabel("-  as it stood then      +  as it stands today"));
    beside->addWidget(m_difference, 1);
    auto* splitter = new QSplitter;
    splitter->addWidget(m_entries);
    splitter->addWidget(right);
    splitter->setChildrenCollapsible(false);

    auto* buttons = new QDialogButtonBox;
    for (auto* button : {m_file, m_entry, m_tree})
        buttons->addButton(button, QDialogButtonBox::ActionRole);
    buttons->addButton(QDialogButtonBox::Close)->setObjectName("cmdClose");
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_skipped);
    layout->addWidget(buttons);
    resize(940, 520);
}

void VersionsDialog::showEntries()
{
    m_list = m_history.entries();
    m_entries->clear();
    QList<QTreeWidgetItem*> rows;
    for (std::size_t at = 0; at < m_list.entries.size(); ++at) {
        const VersionEntry& entry = m_list.entries[at];
        auto* row = new QTreeWidgetItem({shownTime(entry.time), shownWords(entry)});
        row->setData(0, entryRole, QVariant::fromValue(at));
        row->setToolTip(1, counted(entry.files.size()));
        row->setChildIndicatorPolicy(entry.files.empty() ? QTreeWidgetItem::DontShowIndicator
                                                         : QTreeWidgetItem::ShowIndicator);
        rows.append(row);
    }
    m_entries->addTopLevelItems(rows);
    QStringList skipped;
    for (const std::string& each : m_list.skipped)
        skipped.append(QString::fromStdString(each));
    m_skipped->setText(shownPart("Skipped, as it can't be read: " + skipped.join("; ")));
    m_skipped->setVisible(!skipped.isEmpty());
    m_entries->setCurrentItem(m_entries->topLevelItem(0));
    showDifference();
}

/// Only an opened entry needs its rows: a rebuild has a hundred and more of them.
void VersionsDialog::showFiles(QTreeWidgetItem& row) const
{
    const VersionEntry* entry = entryOf(&row);
    if (row.parent() || row.childCount() > 0 || !entry)
        return;
    QList<QTreeWidgetItem*> files;
    for (std::size_t at = 0; at < entry->files.size(); ++at) {
        const KeptFile& file = entry->files[at];
        const QString path = QString::fromStdString(file.told);
        auto* child = new QTreeWidgetItem({file.wasThere() ? path : path + " (was not there)"});
        child->setData(0, entryRole, row.data(0, entryRole));
        child->setData(0, fileRole, QVariant::fromValue(at));
        child->setToolTip(0, child->text(0).toHtmlEscaped());
        files.append(child);
    }
    row.addChildren(files);
    for (auto* file : files)
        file->setFirstColumnSpanned(true); // a path is longer than a time
}

const VersionEntry* VersionsDialog::entryOf(const QTreeWidgetItem* row) const
{
    return row ? &m_list.entries[row->data(0, entryRole).value<std::size_t>()] : nullptr;
}

/// The file of a row; that of an entry's own row is its only one.
const KeptFile* VersionsDialog::fileOf(const QTreeWidgetItem* row) const
{
    const VersionEntry* entry = entryOf(row);
    if (!entry)
        return nullptr;
    if (row->parent())
        return &entry->files[row->data(0, fileRole).value<std::size_t>()];
    return entry->files.size() == 1 ? &entry->files.front() : nullptr;
}

void VersionsDialog::showDifference()
{
    const auto* row = m_entries->currentItem();
    const KeptFile* file = fileOf(row);
    m_file->setEnabled(file);
    m_entry->setEnabled(row);
    m_tree->setEnabled(row);
    if (m_list.entries.empty())
        m_difference->setPlainText(
            "There are no earlier versions yet. Each save and each rebuild keeps here what it "
            "replaces.");
    else if (!file)
        m_difference->setPlainText("Open the entry and choose one of its files.");
    else if (file->wasThere() && !m_history.keptBytes(*file))
        m_difference->setPlainText("The earlier bytes of this file are damaged or gone.");
    else
        quillfen::showDifference(*m_difference, m_history.keptBytes(*file), m_history.todaysBytes(*file));
}

void VersionsDialog::bringBackFile()
{
    if (const KeptFile* file = fileOf(m_entries->currentItem()))
        bringBack(QString::fromStdString(file->told), {*file});
}

void VersionsDialog::bringBackEntry()
{
    if (const VersionEntry* entry = entryOf(m_entries->currentItem()))
        bringBack("what \"" + shownWords(*entry) + "\" replaced", entry->files);
}

void VersionsDialog::bringBackTree()
{
    if (const VersionEntry* entry = entryOf(m_entries->currentItem()))
        bringBack("all settings as they stood before \"" + shownWords(*entry) + '"',
                  m_history.treeBefore(entry->number));
}

void VersionsDialog::bringBack(const QString& what, const std::vector<KeptFile>& files)
{
    const BringingBack back = m_history.bringBack(files);
    QString question =
        back.changes.empty() ? "Nothing to do: all of it stands so today." : "Bring back " + what + '?';
    const QStringList dirty = m_forms.dirty(pathsOf(back.changes));
    if (!dirty.isEmpty())
        question +=
            "\n\nForms with unsaved changes keep them, and their next SAVE replaces what is brought back: " +
            dirty.join(", ");
    for (const std::string& refused : back.refused)
        question += "\n\nNot brought back: " + QString::fromStdString(refused);
    if (back.changes.empty()) {
        notify(this, windowTitle(), question, QMessageBox::Information);
        return;
    }
    if (!confirm(this, windowTitle(), question))
        return;
    const bool isDone = attempt(this, {what + " could not be brought back.", "Mend it and try again."}, [&] {
        Draft draft(m_store, {"Brought back: " + what.toStdString()});
        m_store.commit(back.changes);
        draft.commit();
    });
    m_forms.reload(pathsOf(back.changes)); // also what came back before a failure
    if (isDone)
        showEntries();
}

} // namespace quillfen
