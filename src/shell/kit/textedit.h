#pragma once

#include <QDialog>

class QLineEdit;
class QPlainTextEdit;
class QStatusBar;
class QToolBar;

namespace quillfen {

class SettingsFiles;

/// The whole-file editor of plain texts. It edits 8-bit text: what the code page does not have can't be
/// entered, and what the screen can't show is kept.
class TextEditDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Mode
    {
        Edit,
        New
    };

    /// The path is a told one, relative to the settings root or absolute; a new file starts with no text.
    TextEditDialog(const SettingsFiles& files, const std::string& path, Mode mode, QWidget* parent = nullptr);

    /// Whether the file was written.
    bool isSaved() const { return m_saved; }

    void reject() override;

private:
    void load();
    void save();
    void discard();
    void markDirty();
    void dropForeignCharacters(int position, int added);
    QString text() const;
    bool confirmDiscard();

    const SettingsFiles& m_files;
    Mode m_mode;
    QLineEdit* m_path;
    QToolBar* m_toolbar;
    QPlainTextEdit* m_text;
    QStatusBar* m_statusBar;
    bool bDirty = false;
    bool m_saved = false;
};

/// Shows the editor modally; true if the file was written.
bool editTextFile(QWidget* parent, const SettingsFiles& files, const std::string& path,
                  TextEditDialog::Mode mode = TextEditDialog::Mode::Edit);

} // namespace quillfen
