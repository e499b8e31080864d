#pragma once

#include "declarations/listdeclaration.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/formpart.h"
#include "shell/kit/toolbars.h"

namespace quillfen {

class RowList;
class ToolbarList;

/// What a form adds to a declared list where a window, a file or another list takes part.
struct RowListHooks
{
    /// The toolbar; without builders it has NEW, DELETE and EDIT, or EDIT alone where rows are not added.
    std::vector<ToolbarBuilder> builders{};

    /// The button that a double click on a row presses.
    QString activates = "EDIT";

    /// Off where the buttons don't follow whether there are rows.
    bool rowsLightButtons = true;

    /// The dialog as it is offered at this moment.
    std::function<RowDialog(RowDialog)> offer{};

    /// Why a row is not taken, beyond what its list declares; `before` is the row that was edited, null where
    /// one is added.
    std::function<std::optional<RowRefusal>(const CellRow& row, const CellRow* before)> refusal{};

    /// Whether a row is taken after all. Boxes and dialogs show over `parent`.
    std::function<bool(QWidget* parent, const CellRow& row, const CellRow* before)> accept{};

    /// Off where a row is more than its texts, so that none can be pasted.
    bool takesText = true;

    /// Why a row can't go, told before anything is asked; empty if it can.
    std::function<std::string(const CellRow&)> refuse{};

    /// Lets go what belongs to a row; false leaves the row in the list.
    std::function<bool(QWidget* parent, const CellRow& row)> release{};

    /// A row came, went, moved or changed; without this the form is dirty.
    std::function<void()> note{};
};

/// A declared list: its rows, its toolbar of NEW, DELETE and EDIT, its dialog and its questions.
class RowListPart : public FormPart
{
    Q_OBJECT

public:
    RowListPart(RowListDeclaration declaration, const FormContext& context, RowListHooks hooks = {});

    QWidget* widget() override;
    void load() override;
    void restore() override;
    void save() override;
    RoutineTable routines() override;

    const std::vector<CellRow>& rows() const;
    RowList& list() const { return *m_list; }
    ToolbarList& tools() const { return *m_tools; }

    /// Shows a row's dialog, and takes what it answers.
    EditAnswer editRow(int at);

protected:
    virtual void add();
    virtual void edit();

    const RowListDeclaration& declaration() const { return m_declaration; }
    const FormContext& context() const { return m_context; }

    /// Puts a row behind the others.
    void append(CellRow row);

private:
    void buildMovement();
    void tellInToolTips();
    void removeSelected();
    void moveSelected(int place);
    void followSelection();
    RowDialog dialog() const;
    EditRequest editRequest(const CellRow& row) const;
    CellRow taken(const std::vector<std::string>& fields, CellRow row) const;
    std::optional<RowRefusal> refusalOf(const CellRow& row, const CellRow* before) const;
    bool mayTake(const CellRow& row, const CellRow* before);
    CellRow newRow(const std::vector<std::string>& fields) const;
    void letRowsBePasted();
    void paste();
    bool mayDelete(const std::vector<int>& selected);
    std::vector<int> released(const std::vector<int>& selected);
    std::vector<std::string> fieldsOf(const CellRow& row) const;
    void touch();

    RowListDeclaration m_declaration;
    FormContext m_context;
    RowListHooks m_hooks;
    RowList* m_list;
    ToolbarList* m_tools;
    QToolBar* m_movement; ///< null where rows keep their places
};

/// Declared lists side by side that are saved together.
class RowListGroupPart : public FormPart
{
    Q_OBJECT

public:
    RowListGroupPart(RowListGroup group, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;
    RoutineTable routines() override;

private:
    RowListGroup m_group;
    FormContext m_context;
    std::vector<RowListPart*> m_lists;
    QWidget* m_widget;
};

} // namespace quillfen
