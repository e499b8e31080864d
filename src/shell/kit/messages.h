#pragma once

#include <QMessageBox>
#include <QString>

#include <functional>
#include <optional>
#include <string_view>

class QWidget;

namespace quillfen {

class StoreError;
struct RowRefusal;

/// A box with OK and Cancel; true for OK. Like every box of ours it shows its text as plain text, and a long
/// one in a view that scrolls.
bool confirm(QWidget* parent, const QString& title, const QString& text,
             QMessageBox::Icon icon = QMessageBox::Question,
             QMessageBox::StandardButton preset = QMessageBox::Ok);

/// A question with Yes and No; true for Yes.
bool askYesNo(QWidget* parent, const QString& title, const QString& text);

/// A box with OK only.
void notify(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon);

/// Tells why a row is not taken.
void notify(QWidget* parent, const RowRefusal& refusal);

/// What a box says around the file and the reason of a failed write: what failed, and what to do about it.
struct FailureWords
{
    QString failed;
    QString remedy;
};

/// The words of what can fail: the save of what was typed, a new file, a deletion.
FailureWords saving(const QString& what);
FailureWords making(const QString& file);
FailureWords deleting(const QString& file);

/// Runs an action that writes, and tells its failure; true if there was none. Title: the parent window's own.
bool attempt(QWidget* parent, const FailureWords& words, const std::function<void()>& write);

/// Tells which file or folder could not be written, and why.
void tellFailure(QWidget* parent, const QString& title, const FailureWords& words, const StoreError& error);

/// Why a name typed for a new file can't be had, or would leave its folder.
std::optional<RowRefusal> newFileRefusal(std::string_view name);

/// Tells why a name typed for a new file can't be had, or would leave its folder; true if it is refused so.
bool refuseNewFile(QWidget* parent, std::string_view name);

/// Tells that a name leads out of its folder though it is listed; true if it is refused so. Title: of what
/// was asked for, such as "Cannot open file".
bool refuseListedFile(QWidget* parent, const QString& title, std::string_view name);

} // namespace quillfen
