#pragma once

#include "settings/declaration.h"
#include "shell/kit/controls.h"
#include "shell/kit/formpart.h"

#include <vector>

namespace quillfen {

/// A declared settings file with a bound control for each of its settings: check boxes, then labelled fields,
/// and profile lists beside them.
class TableFilePart : public FormPart
{
    Q_OBJECT

public:
    TableFilePart(const TableFile& file, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;

private:
    QWidget* placed() const;

    const TableFile& m_file;
    FormContext m_context;
    std::vector<Control> m_controls;
    QWidget* m_widget;
};

} // namespace quillfen
