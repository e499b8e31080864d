#pragma once

#include "settings/listdeclaration.h"
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

private:
    void buildToolbar();
    QWidget* placed();
    void add();
    void edit();
    void removeSelected();
    void followRows();

    RowListDeclaration m_declaration;
    FormContext m_context;
    RowList* m_list;
    QToolBar* m_toolbar;
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
