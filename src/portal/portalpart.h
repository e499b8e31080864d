#pragma once

#include "portal/livelinks.h"
#include "portal/portallinks.h"
#include "portal/portalsettings.h"
#include "shell/kit/formpart.h"

#include <array>
#include <optional>
#include <unordered_set>

class QLineEdit;

namespace quillfen {

class RowList;
class ToolbarList;

/// The Portal's controls: the bot's identity, the hubs, whose ticks open and close the links, and the nicks
/// that are not relayed.
class PortalPart : public FormPart, private PortalForm
{
    Q_OBJECT

public:
    explicit PortalPart(const FormContext& context);
    ~PortalPart() override;

    QWidget* widget() override { return m_widget; }

    /// Adds what the file holds to what the lists show.
    void load() override;
    void restore() override {} ///< the form offers no defaults
    void save() override;
    RoutineTable routines() override;

    /// Ends the sockets, without a word to the hubs.
    void close() override { m_live->end(); }

    const LiveLinks& links() const { return *m_live; }

private:
    QWidget* placed();
    QWidget* identity();
    void connectLists();

    void addHub();
    void takeHub(const std::vector<std::string>& values);
    void pasteHubs();
    void editHub();
    void deleteHub();
    void followTick(int row);
    void addNick();
    void takeNick(const std::vector<std::string>& values);
    void pasteNicks();
    void editNick();
    void deleteNick();
    PortalSettings shown() const;

    // What the links ask.
    std::string field(std::size_t at) const;
    std::string username() const override { return field(0); }
    std::string description() const override { return field(1); }
    std::string email() const override { return field(2); }
    bool anyFieldEmpty() const override;
    std::string hub(std::size_t row, HubColumn column) const override;
    std::size_t hubCount() const override;
    bool isChecked(std::size_t row) const override;
    void uncheck(std::size_t row) override;
    bool isIgnored(std::string_view nick) const override;
    void tellMissingFields() override;
    void tellOpenFailure(const SocketError& error) override;
    void tellDatagramFailure(const SocketError& error) override;
    void yield() override;

    FormContext m_context;
    std::array<QLineEdit*, 4> m_fields{};
    RowList* m_hubs;
    ToolbarList* m_hubTools;
    RowList* m_nicks;
    ToolbarList* m_nickTools;
    QWidget* m_widget;
    LiveLinks* m_live;
    mutable std::optional<std::unordered_set<std::string>> m_ignored; ///< of the nick list as it stands
};

} // namespace quillfen
