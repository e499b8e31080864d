// Makes the pages that the program opens out of the guide: guide.html, and for each of its chapters a page
// that leads there, as most desktops hand a file to the browser without the place in it. usage: guidepages
// GUIDE FOLDER
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <iostream>

namespace {

/// What the guide's own links call a chapter.
QString anchorOf(const QString& heading)
{
    static const QRegularExpression unnamed("[^a-z0-9 -]");
    return heading.toLower().remove(unnamed).replace(' ', '-');
}

/// Gives each heading the anchor that links to it name. Returns those of the chapters.
QStringList anchorHeadings(QTextDocument& guide)
{
    QStringList chapters;
    for (QTextBlock block = guide.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0)
            continue;
        QTextCharFormat anchor;
        anchor.setAnchor(true);
        anchor.setAnchorNames({anchorOf(block.text())});
        QTextCursor heading(block);
        heading.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        heading.mergeCharFormat(anchor);
        if (level == 2)
            chapters.append(anchorOf(block.text()));
    }
    return chapters;
}

/// Qt's page, with a look for any browser, light or dark, in place of Qt's own.
QString styled(QString page)
{
    static const QRegularExpression head("<style.*</style>", QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression ownLook("<(body|p|ul|ol|li|table|td|pre|h[1-6])( [^>]*)>");
    static const QRegularExpression ownColour("(color|font-size):[^;]*;");
    page.replace(ownLook, "<\\1>").replace(ownColour, "");
    return page.replace(
        head, "<title>Quillfen for hub owners</title>\n<style>\n"
              ":root { color-scheme: light dark; }\n"
              "body { font: 16px/1.5 sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; }\n"
              "img { max-width: 100%; }\n"
              "pre { margin: 0 0 0 2em; }\n"
              "table { border-collapse: collapse; }\n"
              "td { border: 1px solid #8888; padding: 2px 8px; vertical-align: top; }\n"
              "</style>");
}

bool write(const QString& path, const QString& text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char** argv)
{
#ifdef Q_OS_UNIX
    qputenv("QT_QPA_PLATFORM", "minimal"); // a build has no display
#endif
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile source(arguments.value(1));
    const QDir folder(arguments.value(2));
    if (arguments.size() != 3 || !source.open(QIODevice::ReadOnly) || !folder.mkpath("sections")) {
        std::cerr << "usage: guidepages GUIDE FOLDER\n";
        return 2;
    }
    QTextDocument guide;
    guide.setMarkdown(QString::fromUtf8(source.readAll()));
    const QStringList chapters = anchorHeadings(guide);
    bool written = write(folder.filePath("guide.html"), styled(guide.toHtml()));
    for (const QString& chapter : chapters) {
        const QString place = "../guide.html#" + chapter;
        written =
            write(
                folder.filePath("sections/" + chapter + ".html"),
                "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<meta http-equiv=\"refresh\" content=\"0; url=" +
                    place + "\">\n<a href=\"" + place + "\">" + chapter + "</a>\n") &&
            written;
    }
    return written ? 0 : 1;
}
