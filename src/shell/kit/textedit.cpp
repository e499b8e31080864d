#include "shell/kit/textedit.h"

#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/toolbars.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTextBlock>
#include <QVBoxLayout>

namespace quillfen {
namespace {

QString withoutLastLineEnd(const QString& text)
{
    return text.endsWith(QStringLiteral("\r\n")) ? text.chopped(2) : text;
}

} // namespace

TextEditDialog::TextEditDialog(const SettingsFiles& files, const std::string& path, Mode mode,
                               QWidget* parent)
    : QDialog(parent),
      m_files(files),
      m_mode(mode),
      m_path(new QLineEdit(fromBytes(path))),
      m_toolbar(new QToolBar),
      m_text(new QPlainTextEdit),
      m_statusBar(new QStatusBar)
{
    setObjectName("frmGlobalTextEdit");
    setWindowTitle("Global Text Edit");
    m_path->setObjectName("txtPath");
    m_path->setAccessibleName("File");
    m_path->setReadOnly(true);
    m_toolbar->setObjectName("tlbFormToolbar");
    m_text->setObjectName("txtTextBox");
    m_text->setAccessibleName("Text");
    m_text->setFont(
        QFontDatabase::systemFont(QFontDatabase::FixedFont)); // pictures made of characters stay whole
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setTabChangesFocus(false);
    m_statusBar->setObjectName("stsStatusBar");

    int index = 0;
    BuildFormToolbar(*m_toolbar, index);
    removeButton(*m_toolbar, "RESTORE");
    PlaceChildForm(*m_statusBar);
    addAction(button(*m_toolbar, "SAVE"));
    connect(button(*m_toolbar, "SAVE"), &QAction::triggered, this, &TextEditDialog::save);
    connect(button(*m_toolbar, "DISCARD"), &QAction::triggered, this, &TextEditDialog::discard);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_path);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_statusBar);
    resize(640, 480);
    letKeysReachButtons(*this);
    m_text->setFocus();
    load();
    connect(m_text->document(), &QTextDocument::contentsChange, this,
            [this](int position, int /*removed*/, int added) { dropForeignCharacters(position, added); });
    connect(m_text, &QPlainTextEdit::textChanged, this, &TextEditDialog::markDirty);
}

void TextEditDialog::load()
{
    // The reader ends each line; the writer ends the last one again, so without this the file would grow.
    if (m_mode == Mode::Edit)
        m_text->setPlainText(withoutLastLineEnd(fromBytes(m_files.ReadTextFile(toBytes(m_path->text())))));
    bDirty = SetControlsClean(*m_toolbar, *m_statusBar);
}

QString TextEditDialog::text() const
{
    // Not toPlainText(), which would turn each no-break space into a blank.
    QString raw = m_text->document()->toRawText();
    return raw.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

void TextEditDialog::save()
{
    if (!attempt(this, saving("The text"),
                 [this] { m_files.WriteSettingsFile(toBytes(m_path->text()), toBytes(text())); }))
        return;
    m_saved = true;
    m_mode = Mode::Edit;
    bDirty = SetControlsClean(*m_toolbar, *m_statusBar);
}

bool TextEditDialog::confirmDiscard()
{
    return confirm(this, "Discard changes?", "Discard all unsaved changes?");
}

void TextEditDialog::discard()
{
    if (!confirmDiscard())
        return;
    m_mode = Mode::Edit; // what is on the disk under a new file's name, if anything is
    load();
}

void TextEditDialog::markDirty()
{
    bDirty = SetControlsDirty(*m_toolbar, *m_statusBar);
}

void TextEditDialog::dropForeignCharacters(int position, int added)
{
    QTextCursor cursor(m_text->document());
    for (int at = position + added - 1; at >= position; --at) {
        const QChar character = m_text->document()->characterAt(at);
        if (character == QChar::ParagraphSeparator || character == QChar::Null ||
            codepage::fromUnicode(character.unicode()))
            continue;
        cursor.setPosition(at);
        cursor.deleteChar();
    }
}

void TextEditDialog::reject()
{
    if (!bDirty || confirmDiscard())
        QDialog::reject();
}

bool editTextFile(QWidget* parent, const SettingsFiles& files, const std::string& path,
                  TextEditDialog::Mode mode)
{
    TextEditDialog dialog(files, path, mode, parent);
    dialog.exec();
    return dialog.isSaved();
}

} // namespace quillfen
