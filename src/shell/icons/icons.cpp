#include "shell/icons/icons.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

/// The linker drops a static library's resources unless they are named; this macro must stand outside a
/// namespace.
static void loadIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace quillfen {
namespace {

/// In pixels, as the build drew them; only the program's own icon goes to the end.
constexpr int drawnSides[] = {QUILLFEN_DRAWN_SIDES};

/// An icon that was drawn in several sizes: what is shown is the smallest picture that needn't be enlarged.
class DrawnIcon : public QIconEngine
{
public:
    explicit DrawnIcon(QString name) : m_name(std::move(name)) {}

    QIconEngine* clone() const override { return new DrawnIcon(m_name); }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(place, pixmap((QSizeF(place.size()) * scale).toSize(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*no icon of ours has two*/) override
    {
        const int side = std::min(size.width(), size.height());
        const QString key = QStringLiteral("quillfen %1 %2 %3 %4")
                                .arg(m_name)
                                .arg(side)
                                .arg(mode)
                                .arg(QGuiApplication::palette().cacheKey());
        QPixmap shown;
        if (!QPixmapCache::find(key, &shown)) {
            shown = inMode(picture(side), mode);
            QPixmapCache::insert(key, shown);
        }
        return shown;
    }

private:
    QString fileOf(int side) const { return QStringLiteral(":/icons/%1-%2.png").arg(m_name).arg(side); }

    QString fileFor(int side) const
    {
        QString file;
        for (const int drawn : drawnSides) {
            if (!QFile::exists(fileOf(drawn)))
                break;
            file = fileOf(drawn);
            if (drawn >= side)
                break;
        }
        return file;
    }

    QPixmap picture(int side) const
    {
        const QPixmap drawn(fileFor(side));
        return drawn.width() == side ? drawn : drawn.scaled(side, side, {}, Qt::SmoothTransformation);
    }

    static QPixmap inMode(const QPixmap& picture, QIcon::Mode mode)
    {
        if (mode == QIcon::Normal)
            return picture;
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, picture, &option);
    }

    QString m_name;
};

QHash<QString, QIcon>& icons()
{
    static QHash<QString, QIcon> all;
    return all;
}

/// Icons must not outlive the application.
void forgetIcons()
{
    icons().clear();
}

} // namespace

QIcon themedIcon(const QString& name)
{
    static const bool ready = (loadIcons(), qAddPostRoutine(forgetIcons), true);
    QIcon& icon = icons()[name];
    if (ready && icon.isNull())
        icon = QIcon(new DrawnIcon(name));
    return icon;
}

} // namespace quillfen
