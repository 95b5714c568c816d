#include "forms/box_open.h"
#include "platform/saved_texts.h"
#include "popups/conversation.h"
#include "text/failure.h"
#include "text/saved_page.h"

#include <algorithm>

namespace popups {

namespace {

constexpr std::size_t time_length = 8; // of "03:18 pm", the end of a window's caption

} // namespace

void Conversation::save()
{
    auto const now = uses_.clock.now();
    try {
        auto const path = platform::savedmessagesfolder(uses_.environment, uses_.files) +
                          "/vexlo-" + text::file_stamp(now) + "-" +
                          uses_.forms.frmMain.letters.lower(popup_.messagefrom.caption()) + ".txt";
        uses_.files.write(path, saved_text(path));
        uses_.outside.open_text(path);
    } catch (text::Failure const&) {
        forms::BoxOpen const open(uses_.forms.frmMain);
        uses_.boxes.show({.text = "Cannot create file"});
    }
}

std::string Conversation::saved_text(std::string_view path) const
{
    auto const& letters = uses_.forms.frmMain.letters;
    auto const& caption = popup_.window.caption;
    auto const time = caption.substr(caption.size() - std::min(caption.size(), time_length));
    text::SavedPage page;
    page.line("To       : " + letters.proper(uses_.forms.frmMain.friendlyname));
    page.line("From     : " + letters.proper(popup_.messagefrom.caption()));
    page.line("Date     : " + text::long_date(uses_.clock.now()));
    page.line("Time     : " + time);
    page.rule();
    page.line("");
    page.line("Message:");
    page.line(popup_.message.text());
    page.line("");
    if (!popup_.temp.empty()) {
        page.line("Response (not sent):");
        page.line(popup_.temp.text());
    }
    page.line("");
    return page.finished(path);
}

} // namespace popups
