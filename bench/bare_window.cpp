// The yardstick: a plain Qt multiple-document window with as many nodes, buttons and drop-down entries as
// ours, up to its first paint.
#include "firstpaint.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1180, 780);
    for (const char* name : {"&File", "&Tools", "&Window", "&Help"})
        window.menuBar()->addMenu(name)->addAction("Entry");

    auto* toolbar = window.addToolBar("Functions");
    const QIcon icon = window.style()->standardIcon(QStyle::SP_FileIcon);
    for (int button = 0; button < 15; ++button) {
        auto* action = toolbar->addAction(icon, "Button");
        if (button >= 12)
            continue;
        auto* menu = new QMenu(&window);
        for (int entry = 0; entry < 8; ++entry)
            menu->addAction("Entry");
        action->setMenu(menu);
    }

    auto* tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    auto* root = new QTreeWidgetItem(tree, {"Root"});
    for (int group = 0; group < 12; ++group) {
        auto* heading = new QTreeWidgetItem(root, {"Group"});
        for (int leaf = 0; leaf < 9; ++leaf)
            new QTreeWidgetItem(heading, {"Function"});
    }
    root->setExpanded(true);

    auto* splitter = new QSplitter;
    splitter->addWidget(tree);
    splitter->addWidget(new QMdiArea);
    window.setCentralWidget(splitter);
    window.statusBar()->showMessage("Ready");
    const quillfen::bench::FirstPaint ending(window);
    window.show();
    return QApplication::exec();
}
