// The modal boxes, answered as a person would.

#include "qt/desk_boxes.h"
#include "tests/qt/desk.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

namespace {

using desk::words;
using platform::Answer;
using platform::Buttons;

class Boxes : public testing::Test {
protected:
    /// Does this in the box that comes up next.
    template <typename Dialog>
    void in_the_box(std::function<void(Dialog&)> action)
    {
        QTimer::singleShot(0, qApp, [action = std::move(action)] {
            auto* const box = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            action(*box);
            if (box->isVisible()) {
                ADD_FAILURE() << "the box stays open";
                box->reject();
            }
        });
    }
    /// Presses one of the buttons of the next message box.
    void press(QMessageBox::StandardButton button)
    {
        in_the_box<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
    }
    static void press_escape(QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }

    qt::Codec codec{1252};
    qt::DeskBoxes boxes{codec};
};

TEST_F(Boxes, AMessageShowsItsWordsAsTheyAre)
{
    in_the_box<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), words("Vexlo IM Updater"));
        EXPECT_EQ(box.text(), words("<b>1</b>\n&2"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.button(QMessageBox::Ok)->click();
    });

    EXPECT_EQ(boxes.show({.text = "<b>1</b>\r\n&2", .title = "Vexlo IM Updater"}), Answer::ok);
}

TEST_F(Boxes, AQuestionTellsWhichButtonWasPressed)
{
    press(QMessageBox::Yes);
    EXPECT_EQ(boxes.show({.text = "Are you Sure?", .buttons = Buttons::yes_no}), Answer::yes);
    press(QMessageBox::No);
    EXPECT_EQ(boxes.show({.text = "Are you Sure?", .buttons = Buttons::yes_no}), Answer::no);
    press(QMessageBox::Cancel);
    EXPECT_EQ(boxes.show({.text = "Leave?", .buttons = Buttons::yes_no_cancel}), Answer::cancel);
}

TEST_F(Boxes, AQuestionThatIsClosedIsAnsweredByNo)
{
    in_the_box<QMessageBox>([](QMessageBox& box) { press_escape(box); });
    EXPECT_EQ(boxes.show({.text = "Are you Sure?", .buttons = Buttons::yes_no}), Answer::no);

    in_the_box<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(boxes.show({.text = "Are you Sure?", .buttons = Buttons::yes_no}), Answer::no);
}

TEST_F(Boxes, AnInputOffersItsDefaultAndGivesWhatWasEntered)
{
    in_the_box<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.windowTitle(), words("Change your Ports"));
        EXPECT_EQ(box.labelText(), words("Please enter the new Chat Listening Port #:\n"));
        EXPECT_EQ(box.textValue(), words("4114"));
        auto& line = *box.findChild<QLineEdit*>();
        line.selectAll();
        QTest::keyClicks(&line, words("6000"));
        QTest::keyClick(&box, Qt::Key_Return);
    });

    EXPECT_EQ(boxes.ask({.prompt = "Please enter the new Chat Listening Port #:\r\n",
                         .title = "Change your Ports",
                         .default_text = "4114"}),
              "6000");
}

TEST_F(Boxes, AnInputThatIsCancelledIsEmpty)
{
    in_the_box<QInputDialog>([](QInputDialog& box) { press_escape(box); });

    EXPECT_EQ(boxes.ask({.prompt = "Name?", .title = "Name", .default_text = "Alice"}), "");
}

class SoundDialog : public Boxes {
protected:
    SoundDialog()
    {
        for (auto const* const name : {"bell.wav", "GONG.WAV", "song.mp3", "notes"}) {
            QFile file(folder.filePath(words(name)));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    std::string choose()
    {
        return boxes.choose_file({.title = "Select Sound file",
                                  .pattern = "*.wav",
                                  .pattern_name = "Wave Files (*.wav)",
                                  .present = path("bell.wav")});
    }
    /// The dialog comes to offer these files, in any order.
    static void expect_offered(QFileDialog const& box, QStringList const& names)
    {
        auto const& list = *box.findChild<QListView*>(words("listView"));
        auto const& model = *list.model();
        QStringList offered;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            offered.clear();
            for (int row = 0; row < model.rowCount(list.rootIndex()); ++row) {
                offered.append(model.index(row, 0, list.rootIndex()).data().toString());
            }
            offered.sort();
            return offered == names;
        })) << offered.join(QLatin1Char(' ')).toStdString();
    }
    [[nodiscard]] std::string path(char const* name) const
    {
        return folder.filePath(words(name)).toStdString();
    }

    QTemporaryDir folder;
};

TEST_F(SoundDialog, OffersAllFilesAndWaveFilesFromThePresentOne)
{
    in_the_box<QFileDialog>([this](QFileDialog& box) {
        EXPECT_EQ(box.windowTitle(), words("Select Sound file"));
        auto const& kinds = *box.findChild<QComboBox*>(words("fileTypeCombo"));
        ASSERT_EQ(kinds.count(), 2);
        EXPECT_EQ(kinds.itemText(0), words("All Files (*.*)"));
        EXPECT_EQ(kinds.itemText(1), words("Wave Files (*.wav)"));
        EXPECT_EQ(kinds.currentIndex(), 1);
        EXPECT_EQ(box.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        EXPECT_EQ(box.selectedFiles().value(0), folder.filePath(words("bell.wav")));
        expect_offered(box, {words("GONG.WAV"), words("bell.wav")});
        box.selectNameFilter(words("All Files (*.*) (*)"));
        expect_offered(box,
                       {words("GONG.WAV"), words("bell.wav"), words("notes"), words("song.mp3")});
        press_escape(box);
    });

    EXPECT_EQ(choose(), "");
}

TEST_F(SoundDialog, GivesTheFullPathOfWhatIsChosen)
{
    in_the_box<QFileDialog>([this](QFileDialog& box) {
        box.selectFile(folder.filePath(words("GONG.WAV")));
        QMetaObject::invokeMethod(&box, "accept");
    });

    EXPECT_EQ(choose(), path("GONG.WAV"));
}

} // namespace
