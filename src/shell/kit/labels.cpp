#include "shell/kit/labels.h"

#include "shell/kit/codepagetext.h"

#include <QVBoxLayout>

namespace quillfen {

QLabel* labelFor(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(withoutKeys(text));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

void elide(QLabel& label, const QString& text, int characters)
{
    const int room = characters * label.fontMetrics().averageCharWidth();
    if (label.fontMetrics().horizontalAdvance(text) <= room)
        return;
    label.setText(withoutKeys(label.fontMetrics().elidedText(text, Qt::ElideRight, room)));
    label.setToolTip(
        Qt::convertFromPlainText(text)); // else a text that looks like markup would be taken for it
}

QString withoutKeys(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

QStringList texts(const std::vector<std::string>& bytes)
{
    QStringList all;
    for (const std::string& each : bytes)
        all.append(fromBytes(each));
    return all;
}

QWidget* labelled(const QString& label, QWidget* list)
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(labelFor(label, list));
    layout->addWidget(list, 1);
    return widget;
}

} // namespace quillfen
