#pragma once

#include "tap/datagram.h"
#include "tap/verdict.h"

#include "qt/codec.h"

#include <QJsonObject>
#include <QString>

namespace terminal {

/// A datagram in words, on one line: its kind and its fields.
[[nodiscard]] QString words_of(tap::Datagram const& datagram, qt::Codec const& codec);
/// What a program does with it, in words.
[[nodiscard]] QString words_of(tap::Verdict const& verdict, qt::Codec const& codec);

/// Both as the facts of one JSON object. Texts stand there as people read them; `bytes` are the
/// exact ones, escaped as in a capture.
[[nodiscard]] QJsonObject facts_of(tap::Datagram const& datagram, tap::Verdict const& verdict,
                                   qt::Codec const& codec);

} // namespace terminal
