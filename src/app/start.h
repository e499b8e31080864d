#pragma once

#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "shell/window/mainwindow.h"

#include <memory>

namespace quillfen {

class History;
class HubData;

/// The program in one folder: its files, the hub's profiles and the main window.
class Program
{
public:
    /// The program's own folder is the hub's `scripts` folder.
    Program(FileStore& store, const QString& programFolder, ProgramInfo info);

    /// From now on keeps what is replaced in the hub's data, and says in the status bar if another editor
    /// runs.
    void use(HubData& data);

    /// Runs the whole start, which ends with a main window to be shown. An exit code if the program must end
    /// instead: 0 when the user refused the rebuild, 1 after a failure that was told.
    std::optional<int> start();

    MainWindow& window() { return *m_window; }

private:
    void tellOfOthers();

    ProgramInfo m_info;
    SettingsFiles m_files;
    HubProfiles m_profiles;
    std::unique_ptr<MainWindow> m_window;
    History* m_history = nullptr;
    bool m_isOnlyEditor = true;
};

} // namespace quillfen
