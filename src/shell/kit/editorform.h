#pragma once

#include "declarations/formdeclaration.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/formpart.h"
#include "store/draft.h"

#include <QSize>
#include <QString>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QFrame;
class QLabel;
class QScrollArea;
class QStatusBar;
class QToolBar;

namespace quillfen {

class ChangeMarks;
class SettingCards;

/// An editor form: its toolbar, its parts in a frame that scrolls where there is too little room for them,
/// its status bar, and the cycle of load, change, save, discard, restore and close. It alone knows whether
/// the controls differ from the files.
class EditorForm : public QWidget, public AdvisedForm
{
    Q_OBJECT

public:
    EditorForm(const FormDescription& description, DraftStore& store);

    /// Places the part behind the ones before.
    void add(std::unique_ptr<FormPart> part);

    /// Loads every part; the form is clean.
    void open();

    /// Loads a clean form's parts again, as its files changed. Some forms can't: see FormDescription.
    void loadAnew();

    /// Compares the files with what they held at the last load or save. Where one holds something else, a
    /// clean form loads anew, and a dirty one says so in its second status panel.
    void lookAtFiles();

    const std::map<std::string, FileMark>& files() const override { return m_files; }

    /// What it opens with where there is room: all of its parts, and no less than its own least size.
    QSize sizeHint() const override;

    /// The routine that the form serves to a borrowed right-click menu under this name; empty if it has none.
    std::function<void()> routine(const QString& name) const { return m_routines.value(name).serve; }

    /// Whether a borrowed menu shows that routine's item as lit: not while its button is dark.
    bool isLit(const QString& name) const;

    /// Shows in the second status panel why no version of what was replaced last was kept; empty if one was.
    void tellVersionFault(const QString& fault);

    /// From now on says what is wrong with what it would save, marks what differs from the files, and
    /// explains its settings. All parts are there by then.
    void explainBy(const FormDeclaration& declaration, const FormContext& context);

    /// What it says; null for a form that was not told to.
    FormAdvice* advice() const { return m_advice; }

    /// Shows the card of the setting that has the focus; asks for the guide where it shows already, or there
    /// is none.
    void showCard();

    const std::vector<FormPart*>& parts() const override { return m_parts; }

    void goTo(QWidget& control, int row) override;

    /// The same by the control's name. Nothing happens where there is none of it.
    void goTo(const QString& control, int row = -1);

    bool isWhole() const override { return !m_loading && m_notLoaded.isEmpty(); }

    /// What its SAVE does.
    void save();

    bool isDirty() const override { return bDirty; }
    QString caption() const { return windowTitle(); }

    /// The caption under which the open-window registry knows the form, where it isn't the form's own.
    QString tag() const { return m_tag; }
    void setTag(const QString& tag) { m_tag = tag; }

signals:
    void closed();

    /// Other files may be the form's from now on.
    void loaded();

    /// Whether there is something to save may be otherwise now.
    void dirtyChanged();

    /// The user wants to read more than a card of this form, which is called by its name.
    void guideAsked(const QString& form);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize leastSize() const;
    void focusFirstControl();
    void load();
    bool maySave();
    void commitParts();
    void discard();
    void restore();
    void markDirty();
    void setDirty(bool dirty);
    void remember();
    void adviseSoon();
    void addKey(int key, const std::function<void()>& pressed);
    void showNote(const QString& text);
    void tellChangedFile(const QString& name);
    QString secondPanelText() const;
    QLabel* secondPanel() const;
    void fillSecondPanel();
    bool confirmDiscard();

    FormDescription m_description;
    DraftStore& m_store;
    FormAdvice* m_advice = nullptr;
    ChangeMarks* m_marks = nullptr;
    SettingCards* m_cards = nullptr;
    QString m_rowWords; ///< how many rows came, went and changed
    std::map<std::string, FileMark> m_files;
    QString m_tag;
    QToolBar* m_toolbar;
    QFrame* m_frame;
    QScrollArea* m_scroller;
    QStatusBar* m_statusBar;
    std::vector<FormPart*> m_parts;
    RoutineTable m_routines;
    bool bDirty = false;
    bool m_loading = false;
    QString m_note;         ///< what a part says in the second panel
    QString m_versionFault; ///< and what takes its place there
    QString m_changedFile;  ///< what changed on the disk under a dirty form, which comes before both
    QString m_notLoaded;    ///< why the last load stopped; empty after one that went through
};

} // namespace quillfen
