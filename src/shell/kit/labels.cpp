#include "shell/kit/labels.h"

#include "shell/kit/codepagetext.h"

#include <QToolBar>
#include <QVBoxLayout>

namespace quillfen {

QLabel* labelFor(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

QStringList texts(const std::vector<std::string>& bytes)
{
    QStringList all;
    for (const std::string& each : bytes)
        all.append(fromBytes(each));
    return all;
}

QWidget* labelledList(const QString& label, QWidget* list)
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->addWidget(labelFor(label, list));
    layout->addWidget(list, 1);
    return widget;
}

QWidget* listWithToolbar(const QString& label, QToolBar* toolbar, QWidget* list)
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    if (!label.isEmpty())
        layout->addWidget(labelFor(label, list));
    layout->addWidget(toolbar);
    layout->addWidget(list, 1);
    return widget;
}

} // namespace quillfen
