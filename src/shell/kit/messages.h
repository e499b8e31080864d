#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

namespace quillfen {

class StoreError;

/// A box with OK and Cancel; true for OK. Like every box of ours it shows its text as plain text.
bool confirm(QWidget* parent, const QString& title, const QString& text,
             QMessageBox::Icon icon = QMessageBox::Question);

/// A box with OK only.
void notify(QWidget* parent, const QString& title, const QString& text, QMessageBox::Icon icon);

/// Tells which file or folder could not be written, and why.
void tellFailure(QWidget* parent, const QString& title, const StoreError& error);

} // namespace quillfen
