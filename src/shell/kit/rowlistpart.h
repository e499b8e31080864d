#pragma once

#include "declarations/listdeclaration.h"
#include "shell/kit/formpart.h"

class QAction;
class QToolBar;

namespace quillfen {

class RowList;

/// A declared list: its rows, its toolbar of NEW, DELETE and EDIT, its dialog and its questions.
class RowListPart : public FormPart
{
    Q_OBJECT

public:
    RowListPart(RowListDeclaration declaration, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;
    RoutineTable routines() override;

    const std::vector<CellRow>& rows() const;

protected:
    /// The dialog as it is offered at this moment.
    virtual RowDialog dialog() const { return m_declaration.dialog; }

    /// Why a row can't go, told before anything is asked; empty if it can.
    virtual std::string refusal(const CellRow& row) const;

    /// What a form does before an added or edited row is taken, and before a row goes; false leaves the list
    /// as it is.
    virtual bool mayTake(const CellRow& /*row*/) { return true; }
    virtual bool mayDelete(const CellRow& /*row*/) { return true; }

    /// The same for an added row alone.
    virtual bool mayAdd(const CellRow& row) { return mayTake(row); }

    /// What a row's coming, going or change means to the form: it is dirty.
    virtual void touch() { emit changed(); }

    /// What a double click on a row does.
    virtual void activate() { edit(); }

    virtual void add();
    virtual void edit();

    const RowListDeclaration& declaration() const { return m_declaration; }
    const FormContext& context() const { return m_context; }
    RowList& list() const { return *m_list; }
    QToolBar& toolbar() const { return *m_toolbar; }

    /// Lets the buttons that need a row follow whether there is one.
    virtual void followRows();

private:
    void buildToolbar();
    void buildMovement();
    QWidget* placed();
    void removeSelected();
    bool isLit(const char* key) const; ///< menus, keys and double clicks do no more than the buttons
    void moveSelected(int place);
    void followSelection();

    RowListDeclaration m_declaration;
    FormContext m_context;
    RowList* m_list;
    QToolBar* m_toolbar;
    QToolBar* m_movement; ///< null where rows keep their places
    QWidget* m_widget;
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
