#pragma once

#include "flows.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What several files of stories begin with.
namespace flows {

/// Alice's host, on which the program is about to start.
class AliceAlone : public testing::Test {
protected:
    void start(sim::Setup const& setup = {})
    {
        alice.prepare("Alice Meyer", setup);
        alice.start();
    }

    sim::Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");
    forms::FrmMain& frmMain = alice.frmMain();
};

/// Somebody outside speaks, and Alice alone hears it.
class AliceListening : public TwoPeople {
protected:
    void hear(std::string_view datagram)
    {
        office.segment.inject_to("ROOM12", datagram);
        office.settle();
        office.segment.forget();
    }

    [[nodiscard]] std::vector<std::string> directory() const { return frmMain.userlist.rows(); }
    [[nodiscard]] std::vector<std::string> on_show() const { return frmMain.allusers.rows(); }

    forms::FrmMain& frmMain = alice.frmMain();
};

/// Rows in Alice's queue.
class AlicesQueue : public TwoPeople {
protected:
    /// A datagram lies in the queue; no tick has come yet.
    void put(std::string_view datagram)
    {
        office.segment.inject_to("ROOM12", datagram);
        office.run_for(std::chrono::milliseconds(1));
    }

    void put_messages(int count)
    {
        for (int number = 1; number <= count; ++number) {
            office.segment.inject_to("ROOM12",
                                     message(bob_id, alice_id, "Bob> " + std::to_string(number)));
        }
        office.run_for(std::chrono::milliseconds(1));
    }

    /// The text parts of the history, oldest first.
    [[nodiscard]] std::vector<std::string> handled()
    {
        std::vector<std::string> texts;
        for (int row = 1; row <= alice.history().count(); ++row) {
            texts.push_back(alice.history().row(row).at(5));
        }
        return texts;
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

/// Messages that pop up at Alice's, a second apart, from 17:18:02 on.
class AlicesPopups : public TwoPeople {
protected:
    AlicesPopups()
    {
        alice.clock.set(
            {.year = 2026, .month = 11, .day = 15, .hour = 17, .minute = 18, .second = 2});
    }

    void hear(std::string_view text, std::string_view recipient = alice_id)
    {
        office.segment.inject_to("ROOM12", message(bob_id, recipient, "Bob> " + std::string(text)));
        office.run_for(std::chrono::seconds(1));
    }

    void hear_times(int count)
    {
        for (int number = 0; number < count; ++number) {
            hear(std::to_string(number));
        }
    }

    void close(std::size_t slot)
    {
        alice.person.click(alice.popup(slot), alice.popup(slot).Command1);
    }

    forms::FrmMain& frmMain = alice.frmMain();
    forms::MenuForm& menuform = alice.forms().menuform;
    forms::Popup& popuplast = alice.forms().popuplast;
    controls::ListBox& popups = frmMain.popups;
    controls::ListBox& wins = frmMain.wins;
};

/// The ports that Alice's program uses, with its journal on.
class AlicesPorts : public TwoPeople {
protected:
    AlicesPorts() { alice.journal.switch_on(); }

    /// Every port that was bound, by whomever, in order.
    [[nodiscard]] std::vector<int> bound() const
    {
        std::vector<int> ports;
        for (auto const& each : office.segment.bound()) {
            ports.push_back(each.port);
        }
        return ports;
    }

    [[nodiscard]] std::string settings() const { return alice.files.content("settings.txt"); }

    forms::FrmMain& frmMain = alice.frmMain();
};

} // namespace flows
