#include "shell/kit/editorform.h"

#include "shell/kit/changemarks.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/listview.h"
#include "shell/kit/longtext.h"
#include "shell/kit/messages.h"
#include "shell/kit/settingcards.h"
#include "shell/kit/toolbars.h"
#include "shell/kit/units.h"
#include "store/draft.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

/// What the smallest main window leaves to a form, beside the tree and below its own title bar.
constexpr QSize leastRoom = {500, 400};

/// Shows a form's frame whole where there is room, and else so that all of it can be scrolled to.
class FrameScroller : public QScrollArea
{
public:
    explicit FrameScroller(QFrame* frame)
    {
        setFrameShape(NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus); // the controls inside have it
        setWidget(frame);
    }

    /// Qt's own would end at a few dozen lines.
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

} // namespace

EditorForm::EditorForm(const FormDescription& description, DraftStore& store)
    : m_description(description),
      m_store(store),
      m_toolbar(new QToolBar),
      m_frame(new QFrame),
      m_scroller(new FrameScroller(m_frame)),
      m_statusBar(new QStatusBar)
{
    setObjectName(fromBytes(description.name));
    setWindowTitle(fromBytes(description.caption));
    setMinimumSize(leastSize().boundedTo(leastRoom));
    m_toolbar->setObjectName("tlbFormToolbar");
    m_frame->setObjectName("fraFrame(0)");
    m_statusBar->setObjectName("stsStatusBar");
    m_statusBar->setSizeGripEnabled(false);
    new QBoxLayout(description.parts == FormDescription::Parts::Below ? QBoxLayout::TopToBottom
                                                                      : QBoxLayout::LeftToRight,
                   m_frame);

    int index = 0;
    BuildFormToolbar(*m_toolbar, index);
    if (!description.hasRestore)
        removeButton(*m_toolbar, "RESTORE");
    PlaceChildForm(*m_statusBar);
    secondPanel()->installEventFilter(this);
    addAction(button(*m_toolbar, "SAVE")); // its shortcut works in the whole form
    connect(button(*m_toolbar, "SAVE"), &QAction::triggered, this, &EditorForm::save);
    connectButton(*m_toolbar, "DISCARD", this, &EditorForm::discard);
    connectButton(*m_toolbar, "RESTORE", this, &EditorForm::restore);

    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_F, this, nullptr, nullptr,
                          Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, [this] { openNearestFilter(*m_frame); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_scroller, 1);
    layout->addWidget(m_statusBar);
}

void EditorForm::add(std::unique_ptr<FormPart> owned)
{
    FormPart* part = owned.release();
    part->setParent(this);
    m_parts.push_back(part);
    m_routines.insert(part->routines());
    m_frame->layout()->addWidget(part->widget());
    connect(part, &FormPart::changed, this, &EditorForm::markDirty);
    connect(part, &FormPart::note, this, &EditorForm::showNote);
}

bool EditorForm::isLit(const QString& name) const
{
    const auto* button = m_routines.value(name).button;
    return !button || button->isEnabled();
}

void EditorForm::showNote(const QString& text)
{
    m_note = text;
    fillSecondPanel();
}

void EditorForm::tellVersionFault(const QString& fault)
{
    m_versionFault = fault;
    fillSecondPanel();
}

void EditorForm::tellChangedFile(const QString& name)
{
    m_changedFile = name;
    fillSecondPanel();
}

void EditorForm::lookAtFiles()
{
    const auto changed = std::find_if(m_files.begin(), m_files.end(), [this](const auto& file) {
        return markOf(m_store.read(file.first)) != file.second;
    });
    const bool isChanged = changed != m_files.end();
    if (isChanged && !bDirty && !m_description.isLoadedOnce)
        loadAnew();
    else
        tellChangedFile(isChanged ? QFileInfo(QString::fromStdString(changed->first)).fileName() : QString());
}

QString EditorForm::secondPanelText() const
{
    if (!m_changedFile.isEmpty())
        return m_changedFile + " changed on disk; SAVE replaces it, DISCARD reads it";
    if (!m_versionFault.isEmpty())
        return "No version was kept: " + m_versionFault;
    QString advice = m_advice ? m_advice->words() : QString();
    if (!advice.isEmpty())
        return advice;
    return m_rowWords.isEmpty() || m_note.isEmpty() ? m_rowWords + m_note : m_rowWords + ". " + m_note;
}

QLabel* EditorForm::secondPanel() const
{
    return m_statusBar->findChildren<QLabel*>(Qt::FindDirectChildrenOnly).at(1);
}

void EditorForm::fillSecondPanel()
{
    const QString text = secondPanelText();
    auto* panel = secondPanel();
    panel->setText(text);
    panel->setToolTip(toolTipOf(text));
    const bool leads = m_advice && !text.isEmpty() && text == m_advice->words();
    panel->setCursor(leads ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void EditorForm::explainBy(const FormDeclaration& declaration, const FormContext& context)
{
    m_marks = new ChangeMarks(*m_frame);
    m_cards = new SettingCards(*m_frame, *m_marks);
    for (const PartDeclaration& part : declaration.parts) {
        for (const SettingCard& card : cardsOf(part, context.profiles)) {
            const auto* control = m_cards->add(card);
            if (control && card.defaultValue)
                m_marks->offerDefault(*control, fromBytes(*card.defaultValue));
        }
    }
    m_advice = new FormAdvice(declaration, context, *this, this);
    connect(m_advice, &FormAdvice::looked, this, [this] {
        m_rowWords = m_marks->rowWords();
        fillSecondPanel();
    });
    for (FormPart* part : m_parts)
        connect(part, &FormPart::openFileChanged, m_advice, &FormAdvice::lookSoon);
    addKey(Qt::Key_F8, [this] { m_advice->goToNext(); });
    addKey(Qt::Key_F1, [this] { showCard(); });
}

void EditorForm::addKey(int key, const std::function<void()>& pressed)
{
    auto* action = new QAction(this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    connect(action, &QAction::triggered, this, pressed);
}

void EditorForm::showCard()
{
    if (!m_cards || m_cards->isShown() || !m_cards->show())
        emit guideAsked(objectName());
}

bool EditorForm::eventFilter(QObject* watched, QEvent* event)
{
    if (m_advice && watched == secondPanel() && event->type() == QEvent::MouseButtonRelease)
        m_advice->goToNext();
    return QWidget::eventFilter(watched, event);
}

void EditorForm::goTo(QWidget& control, int row)
{
    m_scroller->ensureWidgetVisible(&control);
    if (auto* list = qobject_cast<ListView*>(&control); list && row >= 0) {
        list->select(row);
        list->scrollTo(list->currentIndex());
    }
    control.setFocus(Qt::OtherFocusReason);
}

void EditorForm::goTo(const QString& control, int row)
{
    if (auto* found = m_frame->findChild<QWidget*>(control))
        goTo(*found, row);
}

void EditorForm::open()
{
    letKeysReachButtons(*this);
    focusFirstControl();
    load();
    setDirty(false);
}

QSize EditorForm::leastSize() const
{
    return twips(m_description.minimumSize.width, m_description.minimumSize.height);
}

QSize EditorForm::sizeHint() const
{
    return QWidget::sizeHint().expandedTo(leastSize());
}

void EditorForm::focusFirstControl()
{
    for (QWidget* each = m_frame->nextInFocusChain(); each != m_frame; each = each->nextInFocusChain()) {
        if (m_frame->isAncestorOf(each) && (each->focusPolicy() & Qt::TabFocus) != 0 && each->isEnabled() &&
            !qobject_cast<QToolButton*>(each)) {
            each->setFocus();
            return;
        }
    }
}

void EditorForm::setDirty(bool dirty)
{
    bDirty = dirty ? SetControlsDirty(*m_toolbar, *m_statusBar) : SetControlsClean(*m_toolbar, *m_statusBar);
    emit dirtyChanged();
}

/// The files hold what the form shows.
void EditorForm::remember()
{
    tellChangedFile({});
    if (m_marks)
        m_marks->remember();
    adviseSoon();
}

void EditorForm::adviseSoon()
{
    if (m_advice)
        m_advice->lookSoon();
}

void EditorForm::markDirty()
{
    if (m_loading)
        return;
    setDirty(true);
    if (m_marks)
        m_marks->follow();
    adviseSoon();
}

void EditorForm::load()
{
    const QScopedValueRollback loading(m_loading, true);
    const ReadRecord record(m_store);
    m_notLoaded.clear();
    try {
        for (FormPart* part : m_parts)
            part->load();
    } catch (const LoadError& error) {
        m_notLoaded = fromBytes(error.what());
        notify(this, caption(), m_notLoaded, QMessageBox::Critical);
    }
    m_files = record.files();
    remember();
    emit loaded();
}

void EditorForm::loadAnew()
{
    if (m_description.isLoadedOnce)
        return;
    load();
    setDirty(false);
}

bool EditorForm::maySave()
{
    if (m_notLoaded.isEmpty())
        return std::all_of(m_parts.begin(), m_parts.end(), [](FormPart* part) { return part->maySave(); });
    notify(this, caption(),
           "Nothing is saved, as the form shows only a part of its settings: " + m_notLoaded +
               ".\n\nMend the file and discard the changes, or restore the defaults.",
           QMessageBox::Warning);
    return false;
}

void EditorForm::commitParts()
{
    Draft draft(m_store, {m_description.caption});
    for (FormPart* part : m_parts)
        part->save();
    auto files = m_files;
    for (const StoreChange& change : draft.changes()) {
        if (change.kind == StoreChange::Kind::Write)
            files[change.path] = markOf(change.bytes);
    }
    draft.commit();
    m_files = std::move(files);
}

void EditorForm::save()
{
    if (!maySave())
        return;
    // After a failure the form stays dirty and complete, so that nothing typed is lost.
    if (!attempt(this, saving(caption()), [this] { commitParts(); }))
        return;
    remember();
    if (m_description.reloadsAfterSave)
        load();
    setDirty(false);
}

bool EditorForm::confirmDiscard()
{
    return confirm(this, "Discard changes?", "Discard all unsaved changes?");
}

void EditorForm::discard()
{
    if (!confirmDiscard())
        return;
    load();
    if (m_description.afterDiscard == FormDescription::AfterDiscard::Clean)
        setDirty(false);
}

void EditorForm::restore()
{
    if (!confirm(this, fromBytes(m_description.restoreTitle), fromBytes(m_description.restoreText)))
        return;
    for (FormPart* part : m_parts)
        part->restore();
    m_notLoaded.clear(); // all of the form shows something again
    markDirty();
}

void EditorForm::closeEvent(QCloseEvent* event)
{
    if (bDirty && !confirmDiscard()) {
        event->ignore();
        return;
    }
    event->accept();
    for (FormPart* part : m_parts)
        part->close();
    emit closed();
}

} // namespace quillfen
