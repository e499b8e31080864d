#pragma once

#include <QMessageBox>
#include <QString>

#include <functional>
#include <string_view>

class QWidget;

namespace quillfen {

class StoreError;

/// A box with OK and Cancel; true for OK. Like every box of ours it shows its text as plain text, and a long
/// one in a view that scrolls.
bool confirm(QWidget* parent, const QString& title, const QString& text,
             QMessageBox::Icon icon = QMessageBox::Question,
             QMessageBox::StandardButton preset = QMessageBox::Ok);

/// A question with Yes and No; true for Yes.
bool askYesNo(QWidget* parent, const QString& title, const QString& text);

/// A box with OK only.
void notify(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon);

/// Runs an action that writes, and tells its failure; true if there was none. Title: the parent window's own.
bool attempt(QWidget* parent, const std::function<void()>& write);

/// Tells why a name typed for a new file can't be had, or would leave its folder; true if it is refused so.
bool refuseFileName(QWidget* parent, std::string_view name);

/// Tells which file or folder could not be written, and why.
void tellFailure(QWidget* parent, const QString& title, const StoreError& error);

} // namespace quillfen
