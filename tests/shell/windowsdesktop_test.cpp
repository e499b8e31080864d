// What the program asks of Windows itself.
#include "app/darkdesktop.h"
#include "shell/window/aboutbox.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <windows.h>

namespace quillfen {
namespace {

constexpr auto own = "Software\\QuillfenTests";

/// For as long as it lives, one of the registry's roots is an empty key of the tests' own.
class EmptyRoot
{
public:
    explicit EmptyRoot(HKEY root) : m_root(root)
    {
        HKEY key = nullptr;
        RegCreateKeyExA(HKEY_CURRENT_USER, own, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
        EXPECT_EQ(RegOverridePredefKey(m_root, key), ERROR_SUCCESS);
        RegCloseKey(key);
    }
    EmptyRoot(const EmptyRoot&) = delete;
    EmptyRoot& operator=(const EmptyRoot&) = delete;
    ~EmptyRoot()
    {
        RegOverridePredefKey(m_root, nullptr);
        RegDeleteTreeA(HKEY_CURRENT_USER, own);
    }

private:
    HKEY m_root;
};

class SystemInformationOfWindows : public testing::Test
{
protected:
    static void set(const QString& key, const QString& name, const QString& value)
    {
        QSettings(R"(HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\)" + key, QSettings::NativeFormat)
            .setValue(name, value);
    }

    /// A program's path, as the registry has it.
    QString program(const QString& name) const
    {
        QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
        return QDir::toNativeSeparators(folder.filePath(name));
    }

    EmptyRoot machine{HKEY_LOCAL_MACHINE};
    QTemporaryDir folder;
};

TEST_F(SystemInformationOfWindows, IsTheProgramThatTheRegistryNames)
{
    const QString tool = program("info.exe");
    set("Shared Tools\\MSINFO", "PATH", tool);
    EXPECT_EQ(systemInformationTool(), QStringList{tool});
}

TEST_F(SystemInformationOfWindows, FailingThatLiesInTheFolderThatTheRegistryNames)
{
    const QString tool = program("MSINFO32.EXE");
    set("Shared Tools\\MSINFO", "PATH", folder.filePath("gone.exe"));
    set("Shared Tools Location", "MSINFO", QDir::toNativeSeparators(folder.path()));
    EXPECT_EQ(systemInformationTool(), QStringList{tool});
}

TEST_F(SystemInformationOfWindows, IsUnavailableWithNeither)
{
    EXPECT_EQ(systemInformationTool(), std::nullopt);
    set("Shared Tools Location", "MSINFO", QDir::toNativeSeparators(folder.path()));
    EXPECT_EQ(systemInformationTool(), std::nullopt) << "it is not there";
}

/// What the owner chose for programs, with Qt's platform and colours as they were at the end.
class DarkWindows : public testing::Test
{
protected:
    DarkWindows() { qunsetenv("QT_QPA_PLATFORM"); }
    ~DarkWindows() override
    {
        qputenv("QT_QPA_PLATFORM", platform);
        QApplication::setStyle("fusion");
    }

    static void setLight(int isLight)
    {
        QSettings(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
                  QSettings::NativeFormat)
            .setValue("AppsUseLightTheme", isLight);
    }

    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    EmptyRoot user{HKEY_CURRENT_USER};
};

TEST_F(DarkWindows, IsFollowedWhereTheOwnerHasIt)
{
    setLight(0);
    EXPECT_TRUE(askForDarkWindows());
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "windows:darkmode=2");
    EXPECT_EQ(QApplication::style()->name(), "fusion");
}

TEST_F(DarkWindows, IsNotFollowedWhereTheOwnerHasNoneOrChoseAPlatform)
{
    EXPECT_FALSE(askForDarkWindows()) << "Windows is light until its owner says otherwise";
    setLight(1);
    EXPECT_FALSE(askForDarkWindows());
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
    setLight(0);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_FALSE(askForDarkWindows());
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "offscreen");
}

TEST_F(DarkWindows, TickBoxesHaveTheColoursOfTheirWindow)
{
    const QPalette before = QApplication::palette();
    QPalette blue = before;
    blue.setColor(QPalette::Base, Qt::blue);
    QApplication::setPalette(blue, "QCheckBox"); // as Windows' dark colours have it
    mendDarkColours();
    for (const char* kind : {"QCheckBox", "QRadioButton"})
        EXPECT_EQ(QApplication::palette(kind).color(QPalette::Base),
                  QApplication::palette().color(QPalette::Base));
    QApplication::setPalette(before);
    for (const char* kind : {"QCheckBox", "QRadioButton"})
        QApplication::setPalette(before, kind);
}

} // namespace
} // namespace quillfen
