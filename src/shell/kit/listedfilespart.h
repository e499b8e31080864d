#pragma once

#include "shell/kit/rowlistpart.h"

namespace quillfen {

/// A list of files by their names, and beside it the rows of the one that is open, whose toolbar has a SAVE
/// and a CLOSE of its own. The names are the form's; the open file tells the form nothing, unless its
/// function does.
class ListedFilesPart : public FormPart
{
    Q_OBJECT

public:
    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< the names have no defaults
    void save() override;
    bool hasUnsavedFile() const override;
    RoutineTable routines() override;

protected:
    /// `hooks` are those of the open file's rows; `above` stands above the names.
    ListedFilesPart(ListedFiles files, const FormContext& context, RowListHooks hooks,
                    QWidget* above = nullptr);

    /// NEW: a name was typed.
    virtual void startFile(const std::string& name) = 0;

    /// OPEN: whether a file that is there joins the list.
    virtual bool mayJoin(const std::string& name) = 0;

    /// EDIT: whether a file may be opened now, whichever it is; then the selected one is.
    virtual bool mayOpen() { return true; }
    virtual void openFile(const std::string& name) = 0;

    /// DELETE: tells why a name has to stay, asks whether it goes, and follows it when it is gone. Nothing
    /// happens to its file. The first is called also where none is selected, with an empty name.
    virtual bool mustStay(const std::string& name) = 0;
    virtual bool asksToGo(const std::string& name) = 0;
    virtual void followGone(const std::string& name) = 0;

    /// The open file's SAVE and CLOSE.
    virtual void saveFile() = 0;
    virtual void closeFile() = 0;

    /// Puts a name behind the others.
    virtual void addName(const std::string& name);

    const ListedFiles& files() const { return m_files; }
    const FormContext& context() const { return m_context; }
    RowList& names() const { return *m_names; }
    ToolbarList& nameTools() const { return *m_nameTools; }
    RowListPart& rows() const { return *m_rows; }
    QAction& rowTool(const QString& key) const;

    /// The selected name; empty if none is.
    std::string selectedName() const;

    /// Whether a name is listed, in letters of any case.
    bool isListed(const std::string& name) const;

    /// Tells why a name doesn't join the list; the text follows the name.
    void tellRefusal(const QString& title, const std::string& name, const std::string& text);

private:
    void askName();
    void chooseFile();
    void removeName();
    void openSelected();

    ListedFiles m_files;
    FormContext m_context;
    RowList* m_names;
    ToolbarList* m_nameTools;
    RowListPart* m_rows;
    QWidget* m_widget;
};

} // namespace quillfen
