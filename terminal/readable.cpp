#include "terminal/readable.h"

#include "tap/escape.h"

namespace terminal {

bool is_harmless(QChar letter)
{
    return letter.isSurrogate() || letter.isPrint();
}

QString readable(qt::Codec const& codec, std::string_view bytes)
{
    QString words;
    for (char const byte : bytes) {
        std::string_view const one(&byte, 1);
        auto const letter = codec.to_unicode(one);
        words += letter.size() == 1 && is_harmless(letter.front())
                     ? letter
                     : QString::fromStdString(tap::escaped(one));
    }
    return words;
}

} // namespace terminal
