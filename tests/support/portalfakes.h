#pragma once

#include "portal/portallinks.h"

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quillfen::test {

/// What the three sockets of one link were asked to do, and what they are made to answer.
struct FakeSockets
{
    explicit FakeSockets(std::string name, std::vector<std::string>& calls)
        : hub(name + " hub", calls),
          listener(name + " listener", calls),
          datagrams(name + " udp", calls)
    {
    }

    template <typename Socket>
    struct Base : Socket
    {
        Base(std::string socketName, std::vector<std::string>& log) : name(std::move(socketName)), calls(log)
        {
        }

        SocketState State() const override { return state; }

        void Close() override
        {
            calls.push_back(name + " closes");
            if (!closesLate)
                state = SocketState::Closed;
        }

        void refuseIf(bool refused) const
        {
            if (refused)
                throw SocketError(98, "Address in use");
        }

        std::string name;
        std::vector<std::string>& calls;
        SocketState state = SocketState::Closed;
        bool closesLate = false; ///< Close does not close at once
        bool refuses = false;
    };

    struct Hub : Base<HubSocket>
    {
        using Base::Base;

        void Connect(std::string_view host, std::string_view port) override
        {
            calls.push_back(name + " connects to '" + std::string(host) + "' '" + std::string(port) + "'");
            refuseIf(refuses);
            state = SocketState::Open;
        }

        void SendData(std::string_view bytes) override
        {
            if (state != SocketState::Connected)
                throw SocketError(57, "Socket is not connected");
            sent.emplace_back(bytes);
        }

        std::string GetData() override { return std::exchange(arrived, {}); }

        std::string all() const
        {
            std::string text;
            for (const std::string& each : sent)
                text += each;
            return text;
        }

        std::vector<std::string> sent; ///< one entry for each send
        std::string arrived;
    };

    struct Listener : Base<ListenSocket>
    {
        using Base::Base;

        void Listen(std::string_view port) override
        {
            calls.push_back(name + " listens on '" + std::string(port) + "'");
            refuseIf(refuses);
            state = SocketState::Open;
        }
    };

    struct Datagrams : Base<DatagramSocket>
    {
        using Base::Base;

        void Bind(std::string_view port) override
        {
            calls.push_back(name + " binds '" + std::string(port) + "'");
            refuseIf(refuses);
            state = SocketState::Open;
        }

        std::string GetData() override
        {
            refuseIf(refuses);
            return arrived;
        }

        std::string arrived;
    };

    LinkSockets all() { return {hub, listener, datagrams}; }

    Hub hub;
    Listener listener;
    Datagrams datagrams;
};

/// A form with two hubs, without widgets.
class FakePortalForm : public PortalForm
{
public:
    struct Row
    {
        std::string cells[4];
        bool checked = false;
    };

    std::string fields[4] = {"bot", "The bot", "bot@hub", "1.2.3.4"};
    std::vector<Row> rows = {{{"one.hub:411", "secret", "5001", "one.hub:411"}},
                             {{"two.hub:412", "hidden", "5002", "two.hub:412"}}};
    std::set<std::string, std::less<>> ignored;
    std::vector<std::string> told;
    int yields = 0;
    std::function<void()> atYield; ///< what happens while the event loop runs

    std::string username() const override { return fields[0]; }
    std::string description() const override { return fields[1]; }
    std::string email() const override { return fields[2]; }

    bool anyFieldEmpty() const override
    {
        return std::any_of(std::begin(fields), std::end(fields),
                           [](const std::string& field) { return field.empty(); });
    }

    std::string hub(std::size_t row, HubColumn column) const override
    {
        return row < rows.size() ? rows[row].cells[static_cast<std::size_t>(column)] : std::string();
    }

    std::size_t hubCount() const override { return rows.size(); }
    bool isChecked(std::size_t row) const override { return rows.at(row).checked; }
    void uncheck(std::size_t row) override { rows.at(row).checked = false; }
    bool isIgnored(std::string_view nick) const override { return ignored.count(nick) > 0; }
    void tellMissingFields() override { told.emplace_back("missing fields"); }

    void tellOpenFailure(const SocketError& error) override
    {
        told.push_back("not opened: " + std::string(error.what()));
    }

    void tellDatagramFailure(const SocketError& error) override
    {
        told.push_back(std::to_string(error.number()) + ": " + error.what());
    }

    void yield() override
    {
        ++yields;
        if (atYield)
            atYield();
    }
};

/// Two links between two hubs that a test plays.
struct PortalFixture
{
    FakePortalForm form;
    std::vector<std::string> calls; ///< of the sockets, but for what was sent
    FakeSockets one{"1", calls};
    FakeSockets two{"2", calls};
    PortalLinks links{form, one.all(), two.all()};

    FakeSockets& sockets(Link link) { return link == Link::One ? one : two; }

    void connect(Link link) { sockets(link).hub.state = SocketState::Connected; }

    /// Data of a hub arrives in one piece.
    void hear(Link link, std::string_view bytes)
    {
        sockets(link).hub.arrived += bytes;
        links.hubDataArrived(link);
    }

    /// Connects and logs in, and forgets what was said on the way.
    void logIn(Link link)
    {
        connect(link);
        hear(link, "$Hello bot|");
        sockets(link).hub.sent.clear();
        form.yields = 0;
    }
};

} // namespace quillfen::test
