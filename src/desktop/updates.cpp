#include "desktop/updates.h"

#include "forms/box_open.h"

namespace desktop {

namespace {

constexpr std::string_view unable = "Unable to Connect/err0";

std::string with_line_breaks(std::string_view news)
{
    std::string text;
    for (char const letter : news) {
        text += letter == '~' ? '\n' : letter;
    }
    return text;
}

} // namespace

Updates::Updates(Uses uses, Version own) : uses_(uses), own_(own)
{
    uses_.frmMain.updates.attach([this] { updates(); });
}

platform::Answer Updates::show(platform::MessageBox const& box)
{
    forms::BoxOpen const open(uses_.frmMain);
    return uses_.boxes.show(box);
}

void Updates::updates()
{
    uses_.frmMain.window.busy.run();
    std::string fetched;
    try {
        fetched = fetch();
    } catch (...) {
        uses_.frmMain.window.idle.run();
        throw;
    }
    uses_.frmMain.window.idle.run();
    if (fetched == unable) {
        show({.text = "Unable to connect to Server at this Time.\nTry again later."});
        return;
    }
    // The text is quoted as it stands, a line end at its end included; only its numbers are read.
    auto const remote = std::string_view(fetched).substr(0, fetched.find('~'));
    if (parse_version(remote).number() <= own_.number()) {
        show({.text = "Vexlo IM v" + version_text(own_) + "\nThis is the latest Version.",
              .title = "Vexlo IM Updater"});
        return;
    }
    auto const answer = show({.text = offer(remote),
                              .title = "Vexlo Instant Messaging Updater",
                              .buttons = platform::Buttons::yes_no});
    if (answer != platform::Answer::no) {
        hand_over();
    }
}

std::string Updates::fetch()
{
    auto const folder = uses_.environment.value("TEMP") + "/";
    auto const version_file = folder + "vexloimversion.txt";
    auto const version_address = uses_.hosts.update + "/vexloimversion.htm";
    uses_.web.forget(version_address);
    if (!uses_.web.download(version_address, version_file)) {
        return std::string(unable);
    }
    auto version = uses_.files.read(version_file);
    uses_.files.remove(version_file);

    auto const news_file = folder + "vexloimwhatsnew.txt";
    auto const news_address = uses_.hosts.update + "/vexloimwhatsnew.htm";
    uses_.web.forget(news_address);
    // Whether the news came is not looked at: reading a file that is not there is what fails.
    static_cast<void>(uses_.web.download(news_address, news_file));
    uses_.frmMain.whatsnew = uses_.files.read(news_file);
    uses_.files.remove(news_file);
    return version;
}

std::string Updates::offer(std::string_view remote)
{
    std::string const rule = std::string(72, '-') + "\n";
    std::string const version(remote);
    auto text = "This is version " + version_text(own_) + "\n" + "An UPDATED version (" + version +
                ") is available!\n\n";
    if (!uses_.frmMain.whatsnew.empty()) {
        text += rule + "What's NEW in version " + version + "?\n\n" +
                with_line_breaks(uses_.frmMain.whatsnew) + "\n" + rule;
    }
    text += "\n(Note: This version will close before installing a newer version)";
    text += "\n\nWould you like to download now?";
    return text;
}

void Updates::hand_over()
{
    show({.text = "This program will close now."});
    uses_.outside.open_web(uses_.frmMain.updateurl);
    uses_.transport.close_both();
    uses_.frmMain.saveusers.run();
    uses_.trouble.end_program(); // No sign-off: peers keep the name until the next start.
}

} // namespace desktop
