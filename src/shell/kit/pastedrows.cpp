#include "shell/kit/pastedrows.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowtext.h"

#include <QApplication>
#include <QClipboard>

namespace quillfen {
namespace {

/// What a field of a dialog keeps of a text that is pasted into it.
std::string fieldText(QString cell)
{
    int cursor = static_cast<int>(cell.size());
    OneLineValidator().validate(cell, cursor);
    return toBytes(cell);
}

/// A row's fields; those that it lacks are what the dialog starts with.
std::vector<std::string> fieldsOf(const QStringList& cells, const EditRequest& request)
{
    std::vector<std::string> fields;
    for (const QString& cell : cells)
        fields.push_back(fieldText(cell));
    const std::size_t count = inputsOf(request.form).size();
    while (fields.size() < count)
        fields.push_back(fields.size() < request.values.size() ? request.values[fields.size()] : "");
    return fields;
}

} // namespace

bool pasteRows(QWidget* parent, const EditRequest& request,
               const std::function<std::string(const std::vector<std::string>& fields)>& take)
{
    const auto rows = rowsOfText(QApplication::clipboard()->text());
    QStringList refused;
    for (const QStringList& cells : rows) {
        const auto fields = fieldsOf(cells, request);
        std::string fault = fieldsFault(request, fields);
        if (fault.empty())
            fault = take(fields);
        if (!fault.empty())
            refused.append(cells.join(", ") + ": " + fromBytes(fault).simplified());
    }
    if (!refused.isEmpty())
        notify(parent, "Rows not pasted",
               QString("%1 of %2 rows not taken:\n\n").arg(refused.size()).arg(rows.size()) +
                   refused.join(u'\n'),
               QMessageBox::Warning);
    return refused.size() < rows.size();
}

} // namespace quillfen
