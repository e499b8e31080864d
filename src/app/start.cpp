#include "app/start.h"

#include "app/hubdata.h"
#include "check/functionfacts.h"
#include "check/nodeoffile.h"
#include "check/treecheck.h"
#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "functions/ownparts.h"
#include "news/newsclient.h"
#include "settings/profiles.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/contraststyle.h"
#include "shell/kit/messages.h"
#include "shell/window/checkdialog.h"

#include <QLabel>
#include <QStatusBar>

#include <algorithm>

namespace quillfen {
namespace {

FailureWords wordsFor(const StoreError& error)
{
    if (dynamic_cast<const NoScriptFolder*>(&error))
        return {"Quillfen doesn't lie beside the hub script.",
                "Nothing was made: move the program into the hub's scripts folder and start it again."};
    if (dynamic_cast<const NoNewsFolder*>(&error))
        return {"The folder of the news couldn't be made.",
                "Your settings are untouched: mend it and start the program again."};
    return {"The settings couldn't be rebuilt.",
            "What was written by then stays, and the next start asks again: mend it and start the program "
            "again."};
}

/// Puts what is to be told of the hub's profiles behind the told panels, if there is anything.
void showNotices(QStatusBar& statusBar, const std::vector<ProfileNotice>& notices)
{
    QStringList sentences;
    QStringList details;
    for (const ProfileNotice& notice : notices) {
        sentences.append(fromBytes(notice.sentence));
        details.append({fromBytes(notice.sentence), fromBytes(notice.details)});
    }
    if (sentences.isEmpty())
        return;
    auto* panel = new StatusPanel("PROFILES", {});
    panel->setLine(sentences.join(". "));
    panel->setToolTip(Qt::convertFromPlainText(details.join('\n')));
    panel->setAccessibleDescription(details.join('\n'));
    constexpr int room = 440; // the smallest window has it beside the versions
    panel->setMinimumWidth(std::min(panel->fontMetrics().horizontalAdvance(panel->text()) + 16, room));
    statusBar.addPermanentWidget(panel);
}

} // namespace

Program::Program(FileStore& store, const QString& programFolder, ProgramInfo info)
    : m_info(std::move(info)),
      m_files(store, SettingsPaths(programFolder.toStdString()))
{
}

void Program::use(HubData& data)
{
    m_history = &data.history();
    m_files.store().keepVersionsIn(m_history);
    m_isOnlyEditor = data.isOnlyEditor();
}

/// The user may go on: what is saved last holds.
void Program::tellOfOthers()
{
    if (m_isOnlyEditor)
        return;
    auto* panel = new QLabel(m_info.product + " runs on this hub already");
    panel->setObjectName("OTHERS");
    panel->setTextFormat(Qt::PlainText);
    m_window->statusBar()->addPermanentWidget(panel);
}

std::optional<int> Program::start()
{
    ContrastStyle::install();
    // The navigator comes before the rebuild and shows the tree's switches as they stand now.
    m_window = std::make_unique<MainWindow>(
        m_info, FormContext{.files = m_files, .profiles = m_profiles, .facts = functionFacts()},
        functionNodes(), formCatalogue(), partMakers());
    m_window->offerCheck({[this] { return checkTree(m_files); },
                          [this](const std::string& file) { return nodeOfFile(m_files, m_profiles, file); }});
    if (m_history)
        m_window->offerVersions(*m_history);
    const auto ask = [](const RebuildQuestion& question) {
        return confirm(nullptr, fromBytes(question.title), fromBytes(question.text));
    };
    try {
        const Reconciliation reconciliation{m_files, folderCatalogue(), m_info.version.toStdString(), ask};
        if (reconcileSettings(reconciliation, m_profiles) == StartResult::Refused)
            return 0;
    } catch (const StoreError& error) {
        tellFailure(nullptr, m_info.product, wordsFor(error), error);
        return 1;
    }
    showNotices(*m_window->statusBar(), profileNotices(m_files.store(), m_files.paths()));
    auto* news = new NewsClient(*m_window->statusBar(), m_files, m_info.version.toStdString(),
                                {m_info.newsBase.toStdString(), m_info.updatesBase.toStdString()});
    tellOfOthers();
    news->runStart();
    return std::nullopt;
}

} // namespace quillfen
