#pragma once

#include "declarations/listdeclaration.h"

#include <QDialog>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QLabel;
class QPushButton;

namespace quillfen {

/// What a dialog is called for, Add or Edit, and what came of it: OK, Add, which takes a row and goes on to
/// the next, or nothing for Cancel and for the closed window.
enum class EditResult : char
{
    None = '\0',
    Add = 'A',
    Edit = 'E',
    Ok = '1',
};

/// A call of an edit dialog. Fields, labels and results stand in field order, at most four.
struct EditRequest
{
    EditForm form;
    std::string title;
    EditResult gEditResult;
    int gEditMode;
    std::vector<std::string> labels;
    std::vector<std::string> values{};               ///< what the fields start with; empty where missing
    std::vector<std::vector<std::string>> entries{}; ///< for each combo box
    std::vector<std::pair<int, int>> ranges{};       ///< for each number
};

/// What came of it.
struct EditAnswer
{
    EditResult gEditResult = EditResult::None;
    std::vector<std::string> gEditValues{};
    bool byCancel = false; ///< no result came of Cancel, and not of the closed window or Escape
};

/// One of the twelve dialogs that edit a row. It has no idea which list it serves.
class EditDialog : public QDialog
{
    Q_OBJECT

public:
    explicit EditDialog(const EditRequest& request, QWidget* parent = nullptr);

    const EditAnswer& answer() const { return m_answer; }

private:
    struct Field
    {
        QWidget* input;
        std::function<std::string()> text;
        bool required;
    };

    void addField(const EditRequest& request, std::size_t number, char kind);
    Field textField(const std::string& value);
    Field numberField(const EditRequest& request, const std::string& value);
    Field comboField(const EditRequest& request, const std::string& value);
    void addButtons();
    void fitTexts();
    void follow();
    void finish(EditResult result);

    std::vector<Field> m_fields;
    int m_texts = 0; ///< inputs of each kind so far: they are counted apart
    int m_combos = 0;
    int m_numbers = 0;
    bool m_mayAdd;
    QPushButton* m_ok = nullptr;
    QPushButton* m_add = nullptr;
    EditAnswer m_answer;
};

/// Shows the dialog modally.
EditAnswer showEditDialog(QWidget* parent, const EditRequest& request);

/// Shows the dialog again and again for as long as its answer is Add, and gives each row that it takes to
/// `take`.
void addRows(QWidget* parent, const EditRequest& request,
             const std::function<void(const std::vector<std::string>&)>& take);

/// Why the dialog of a request would not take these values, in words; empty if it would.
std::string fieldsFault(const EditRequest& request, const std::vector<std::string>& values);

/// The modes in which the callers of a dialog add and edit unless they say otherwise: by its count of inputs,
/// 1 and 0, 1 and 2, or 4 and 5. One of four inputs has none: its callers tell theirs.
int habitualAddMode(EditForm form);
int habitualEditMode(EditForm form);

} // namespace quillfen
