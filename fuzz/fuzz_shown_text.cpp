#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "qt/shown_text.h"

#include <string>
#include <string_view>

namespace {

using fuzz::check;

void check_places(qt::ShownText const& shown)
{
    for (qsizetype place = 0; place <= shown.text().size(); ++place) {
        check(shown.shown_place(shown.model_place(place)) == place,
              "a place comes back as it went");
    }
    check(shown.model_place(shown.text().size()) == shown.model().size(), "the ends are the same");
}

/// A person makes the text read as another one.
void check_change(qt::ShownText const& shown, QString const& now, qt::Codec const& codec)
{
    auto const change = shown.change_to(now);
    check(change.start >= 0 && change.length >= 0 &&
              change.start + change.length <= shown.text().size(),
          "a change lies inside the text");
    auto const changed = shown.changed(change, codec.from_unicode(change.words));
    // A CR and an LF that stood apart are one line end when they come to stand together.
    if (shown.model().find('\r') == std::string::npos) {
        check(qt::ShownText(changed, codec).text() == now, "a change is what was typed");
    }
    check(changed.starts_with(shown.model().substr(0, shown.model_place(change.start))),
          "what stands before a change keeps its bytes");
    check(changed.ends_with(shown.model().substr(shown.model_place(change.start + change.length))),
          "so does what stands behind it");
}

void run(int code_page, std::string const& model, std::string const& other)
{
    qt::Codec const codec(code_page);
    check(codec.from_unicode(codec.to_unicode(model)) == model, "every byte comes back as it went");
    qt::ShownText const shown(model, codec);
    check(!shown.text().contains(u'\r'), "every line end is shown as one");
    check_places(shown);
    check_change(shown, shown.text(), codec);
    check_change(shown, qt::ShownText(other, codec).text(), codec);
}

} // namespace

/// The first byte is the code page.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    constexpr int first_page = 1250;
    constexpr int pages = 10; // The last one stands for 874.
    auto const input = fuzz::as_text(bytes, size);
    int const page = input.empty() ? 0 : static_cast<unsigned char>(input.front()) % pages;
    fuzz::Pieces pieces(input.substr(input.empty() ? 0 : 1));
    auto const model = pieces.next();
    run(page == pages - 1 ? 874 : first_page + page, model, pieces.next());
    return 0;
}
