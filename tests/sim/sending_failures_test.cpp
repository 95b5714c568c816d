#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class SendingFailures : public TwoPeople {
protected:
    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    void refuse_sends(std::string_view text, int number)
    {
        alice.host.send_failure = text::Failure(text, number, "send");
    }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::TextBox& draft = frmMain.messagetext;
};

TEST_F(SendingFailures, AMissingNetworkIsTold)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("No Network Connection."));
    EXPECT_EQ(alice.boxes.shown().at(0).title, "Vexlo Instant Messaging");
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_EQ(alice.log().back(), logged("Network Error No route to host."));
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"), HasSubstr("Network Error No route"));
    EXPECT_TRUE(alice.running());
}

TEST_F(SendingFailures, AFailedMessageHasToBeTakenFromTheRecall)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    auto const focus = draft.focus.requests();

    alice.person.send_to("Bob", "Hello");

    EXPECT_EQ(draft.text(), "");
    EXPECT_EQ(frmMain.recalltext, "Hello");
    EXPECT_GT(draft.focus.requests(), focus + 1);
    EXPECT_EQ(alice.history().count(), 0);
    EXPECT_THAT(alice.log(), Not(Contains(HasSubstr("Msg to"))));
}

TEST_F(SendingFailures, TheMainWindowIsShownFirst)
{
    alice.unplug();
    alice.person.pick("Bob");
    alice.person.type("Hello");
    frmMain.window.hide();
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { EXPECT_TRUE(frmMain.window.visible()); });

    alice.enter([this] { frmMain.sendbtn.click(); });

    EXPECT_TRUE(frmMain.window.visible());
}

TEST_F(SendingFailures, TheMainWindowIsShownForAFailureOfAnyKind)
{
    for (auto const* const text : {"Operation not permitted", "Address in use"}) {
        refuse_sends(text, 1);
        alice.person.pick("Bob");
        alice.person.type("Hello");
        frmMain.window.hide();
        alice.boxes.will_answer(Answer::ok).meanwhile([&] {
            EXPECT_TRUE(frmMain.window.visible()) << text;
        });

        alice.enter([this] { frmMain.sendbtn.click(); });
    }
    EXPECT_THAT(alice.boxes.shown(), SizeIs(2));
}

TEST_F(SendingFailures, RowsWaitBehindTheBoxAndAreHandledAfterIt)
{
    refuse_sends(text::no_route_to_host, 113);
    alice.boxes.will_answer(Answer::ok).after(3s).meanwhile([&] {
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        office.segment.inject_to("ROOM12", message(bob_id, alice_id, "Bob> Hello"));
    });

    alice.person.send_to("Bob", "Hello");

    EXPECT_EQ(frmMain.boxopen.value(), 0);
    EXPECT_EQ(frmMain.cue.size(), 1U);
    EXPECT_TRUE(frmMain.Timer3.enabled());
    office.settle();
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(SendingFailures, TheDownStateIsSetBeforeTheBoxSoTheWatchProbesBehindIt)
{
    refuse_sends(text::no_route_to_host, 113);
    alice.boxes.will_answer(Answer::ok).after(6s);

    alice.person.send_to("Bob", "Hello");

    EXPECT_FALSE(frmMain.allusers.enabled);
}

TEST_F(SendingFailures, WhatWentOutBeforeTheFailureIsRecorded)
{
    refuse_sends(text::no_route_to_host, 113);
    alice.host.sends_before_failure = 1;
    alice.boxes.will_answer(Answer::ok);
    alice.person.pick({"Alice Meyer", "Bob"});

    alice.person.send("Hello");

    EXPECT_THAT(sent(), SizeIs(1));
    EXPECT_EQ(alice.history().count(), 1);
    EXPECT_EQ(alice.history().row(1).at(3), "Alice Meyer");
    EXPECT_EQ(draft.text(), "");
}

TEST_F(SendingFailures, AFailedMessageToAllHasUntickedTheBox)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    alice.person.tick_all();

    alice.person.send("Hello");

    EXPECT_EQ(frmMain.Checkallusers.value(), 0);
    EXPECT_EQ(draft.text(), "");
}

TEST_F(SendingFailures, AnyOtherFailureIsToldWithItsNumber)
{
    refuse_sends("Operation not permitted", 1);
    alice.boxes.will_answer(Answer::ok).meanwhile([&] {
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    });
    auto const focus = draft.focus.requests();

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Error #1\r\nError :Operation not permitted"));
    EXPECT_EQ(alice.log().back(), logged("Network Error Operation not permitted"));
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"), HasSubstr("Operation not permitted"));
    EXPECT_EQ(draft.text(), "");
    EXPECT_GT(draft.focus.requests(), focus + 1);
    EXPECT_TRUE(alice.running());
}

TEST_F(SendingFailures, AMessageThatIsTooLongForOneDatagramIsAnyOtherFailure)
{
    alice.boxes.will_answer(Answer::ok);
    frmMain.friendlyname = std::string(66'000, 'A');

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Error #90\r\nError :Message too long"));
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
}

TEST_F(SendingFailures, ATakenAddressEndsTheProgramAtOnce)
{
    refuse_sends(text::address_in_use, 98);
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { EXPECT_EQ(frmMain.boxopen.value(), 1); });
    alice.journal.switch_on();
    alice.forms().menuform.unloadmecommand.attach([this] { alice.journal.note("unload"); });

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"box Port 4112 is in use.", "unload", "end 0"}));
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
    EXPECT_EQ(frmMain.boxopen.value(), 0);
}

TEST_F(SendingFailures, ATakenAddressFromAnywhereElseIsPassedOver)
{
    frmMain.cleanlog.attach(
        [] { throw text::Failure(text::address_in_use, 98, "somewhere else"); });
    frmMain.statustext.set_caption("as it was");

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Bob");
    EXPECT_THAT(alice.log(), Not(Contains(HasSubstr("Network Error"))));
    EXPECT_TRUE(alice.running());
}

TEST_F(SendingFailures, ALogThatCannotBeMirroredIsAnyOtherFailureBehindTheSend)
{
    // The mirror fails once behind the send and once behind the box, where nobody handles it.
    alice.files.fail_after(0, sim::MemoryFiles::Leaves::old_file);
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(sent(), SizeIs(1));
    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Error #75\r\nError :Path/File access error"));
    EXPECT_TRUE(alice.running());
}

TEST_F(SendingFailures, AFailureInTheFailurePathEndsTheProgramWithItsReport)
{
    alice.files.unwritable = {"logs/logtemp.txt"};
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(SendingFailures, ThePeerHearsNothingOfAFailedMessage)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    alice.person.send_to("Bob", "Hello");
    office.settle();

    EXPECT_EQ(bob.history().count(), 0);
}

TEST_F(SendingFailures, TheNextMessageGoesOutWhenTheNetworkIsBack)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    alice.person.send_to("Bob", "one");
    office.run_for(10s);
    alice.plug_in();
    office.run_for(watch);
    office.settle();

    alice.person.send_to("Bob", "two");
    office.settle();

    EXPECT_EQ(bob.popup(0).message.text(), "ALICE MEYER> two");
}

} // namespace
