#pragma once

#include "support/dialogs.h"
#include "support/groupforms.h"

#include <QComboBox>

namespace quillfen::test {

/// The main window over a built tree, with the files of the security functions.
class SecurityForms : public GroupForms
{
protected:
    SecurityForms() : GroupForms("Security", "security") {}

    /// The text of the label that shows beside or above a control.
    static std::string labelOf(const EditorForm& form, const char* control)
    {
        for (const auto* label : form.findChildren<QLabel*>()) {
            if (label->buddy() && label->buddy()->objectName() == control && label->isVisible())
                return label->text().toStdString();
        }
        return "no such label";
    }

    /// The number boxes that a unit stands behind.
    static QStringList boxesOf(const EditorForm& form, const char* unit)
    {
        QStringList boxes;
        for (const auto* label : form.findChildren<QLabel*>()) {
            if (label->text() == unit)
                boxes.append(find<NumberBox>(*label->parentWidget(), {}).objectName());
        }
        return boxes;
    }

    static QStringList entries(const QComboBox& combo)
    {
        QStringList all;
        for (int at = 0; at < combo.count(); ++at)
            all.append(combo.itemText(at));
        return all;
    }

    /// The entries of the combo box in the dialog that an action opens.
    static QStringList offered(const std::function<void()>& action)
    {
        QStringList all;
        withModal(action, [&all](QWidget& modal) {
            all = entries(find<QComboBox>(modal, "cboComboBox(0)"));
            modal.close();
        });
        return all;
    }

    /// The files that the store wrote since its log was cleared, in that order, without their folders.
    std::vector<std::string> written() const
    {
        std::vector<std::string> names;
        for (const std::string& each : hub.store.log)
            names.push_back(each.substr(each.find_last_of('/') + 1));
        return names;
    }
};

} // namespace quillfen::test
