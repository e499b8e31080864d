#include "shell/kit/labels.h"

#include "shell/kit/codepagetext.h"

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

QWidget* listWithToolbar(const QString& label, QWidget* toolbar, QWidget* list)
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    if (!label.isEmpty())
        layout->addWidget(labelFor(label, list));
    if (toolbar)
        layout->addWidget(toolbar);
    layout->addWidget(list, 1);
    return widget;
}

} // namespace quillfen
