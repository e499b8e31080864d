#pragma once

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace quillfen::test {

/// What a message box showed.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::StandardButton preset = QMessageBox::NoButton; ///< what Enter presses
};

/// A text in which paths stand as the platform's people write them.
inline std::string native(const std::string& text)
{
    return QDir::toNativeSeparators(QString::fromStdString(text)).toStdString();
}

/// Runs an action that opens modal windows, and acts on each as a user would: `use` is called once for every
/// one.
inline void withModal(const std::function<void()>& action, const std::function<void(QWidget&)>& use)
{
    QTimer timer;
    QWidget* used = nullptr;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal == used || !modal->isVisible())
            return;
        used = modal;
        use(*modal);
        used = nullptr;
    });
    timer.start(1);
    action();
}

/// Runs an action and answers each message box that it opens with the same button; other modal windows are
/// given to `use`. Returns what the boxes showed.
inline QList<SeenBox> answering(
    QMessageBox::StandardButton answer, const std::function<void()>& action,
    const std::function<void(QWidget&)>& use = [](QWidget&) {})
{
    QList<SeenBox> seen;
    withModal(action, [&](QWidget& modal) {
        auto* box = qobject_cast<QMessageBox*>(&modal);
        if (!box) {
            use(modal);
            return;
        }
        seen.append({box->windowTitle(), box->text(), box->standardButtons(), box->icon(), box->textFormat(),
                     box->standardButton(box->defaultButton())});
        if (auto* button = box->button(answer))
            button->click();
        else
            box->close();
    });
    return seen;
}

/// Types a text into an input box and presses OK.
inline void typeInto(QWidget& modal, const QString& text)
{
    if (auto* input = qobject_cast<QInputDialog*>(&modal)) {
        input->setTextValue(text);
        input->accept();
    }
}

/// The folder in which an action's file dialog starts, and its filters as they read. The dialog is cancelled.
struct OfferedFiles
{
    QString folder;
    QStringList filters;
};

inline OfferedFiles offeredFiles(const std::function<void()>& action)
{
    OfferedFiles offered;
    withModal(action, [&offered](QWidget& modal) {
        auto* dialog = qobject_cast<QFileDialog*>(&modal);
        offered = {dialog->directory().absolutePath(), {}};
        const auto* types = dialog->findChild<QComboBox*>("fileTypeCombo");
        for (int each = 0; each < types->count(); ++each)
            offered.filters.append(types->itemText(each));
        dialog->reject();
    });
    return offered;
}

/// Chooses a file in a file dialog.
inline void chooseFile(QWidget& modal, const QString& folder, const QString& name)
{
    if (auto* dialog = qobject_cast<QFileDialog*>(&modal)) {
        dialog->setDirectory(folder);
        dialog->selectFile(name);
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    }
}

} // namespace quillfen::test
