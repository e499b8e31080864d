// The yardstick: a plain Qt multiple-document window with the same tree and toolbars as ours, up to its first
// paint.
#include "firstpaint.h"
#include "functions/catalogue.h"
#include "shell/window/navigatortable.h"

#include <QHash>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

using quillfen::NavigatorRow;

const quillfen::NavigatorTable& table()
{
    static const quillfen::NavigatorTable rows(quillfen::functionNodes());
    return rows;
}

QIcon plainIcon(const QWidget& widget)
{
    return widget.style()->standardIcon(QStyle::SP_FileIcon);
}

QMenu* dropDown(const QString& group, QWidget* parent)
{
    auto* menu = new QMenu(parent);
    for (const NavigatorRow& row : table().rows()) {
        if (row.key.section('~', 0, 0) == group && !table().isHeading(row.key))
            menu->addAction(row.dropDown);
    }
    return menu;
}

void addToolbar(QMainWindow& window)
{
    auto* toolbar = window.addToolBar("Functions");
    const QIcon icon = plainIcon(window);
    for (const char* button : {"Tree", "Scripts", "Donate"})
        toolbar->addAction(icon, button);
    for (const NavigatorRow& row : table().rows()) {
        if (table().parentKey(row.key).isEmpty())
            toolbar->addAction(icon, row.caption)->setMenu(dropDown(row.key, toolbar));
    }
}

QTreeWidget* tree()
{
    auto* tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    auto* root = new QTreeWidgetItem(tree, {"Quillfen"});
    QHash<QString, QTreeWidgetItem*> nodes = {{QString(), root}};
    for (const NavigatorRow& row : table().rows())
        nodes.insert(row.key, new QTreeWidgetItem(nodes.value(table().parentKey(row.key)), {row.caption}));
    root->setExpanded(true);
    return tree;
}

QWidget* sidebar()
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    auto* toolbar = new QToolBar;
    for (const char* button : {"Expand", "Collapse"})
        toolbar->addAction(plainIcon(*widget), button);
    layout->addWidget(toolbar);
    layout->addWidget(tree());
    return widget;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1180, 780);
    for (const char* name : {"&File", "&Tools", "&Window", "&Help"})
        window.menuBar()->addMenu(name)->addAction("Entry");
    addToolbar(window);
    auto* splitter = new QSplitter;
    splitter->addWidget(sidebar());
    splitter->addWidget(new QMdiArea);
    window.setCentralWidget(splitter);
    window.statusBar()->showMessage("Ready");
    const quillfen::bench::FirstPaint ending(window, quillfen::bench::endProgram);
    window.show();
    return QApplication::exec();
}
