#include "qt/codec.h"

#include <QStringDecoder>

#include <algorithm>
#include <utility>
#include <vector>

namespace qt {

namespace {

/// A byte that the code page leaves open is shown as a private character, so that it comes back as
/// it went.
constexpr char16_t open_place = 0xF700;

} // namespace

Codec::Codec(int code_page)
{
    bool const known = code_page == 874 || (code_page >= 1250 && code_page <= 1258);
    auto const name = "windows-" + QByteArray::number(known ? code_page : 1252);
    for (std::size_t byte = 0; byte < unicode_.size(); ++byte) {
        QStringDecoder decoder(name.constData(), QStringConverter::Flag::Stateless);
        if (!decoder.isValid()) {
            decoder = QStringDecoder("windows-1252", QStringConverter::Flag::Stateless);
        }
        char const letter = static_cast<char>(byte);
        QString const decoded = decoder(QByteArrayView(&letter, 1));
        bool const open = decoded.size() != 1 || decoded[0] == QChar::ReplacementCharacter;
        unicode_[byte] = open ? static_cast<char16_t>(open_place + byte) : decoded[0].unicode();
        bytes_.insert(unicode_[byte], letter);
    }
}

QString Codec::to_unicode(std::string_view bytes) const
{
    QString words(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    std::ranges::transform(bytes, words.begin(), [this](char letter) {
        return QChar(unicode_[static_cast<unsigned char>(letter)]);
    });
    return words;
}

std::string Codec::from_unicode(QStringView words) const
{
    if (holds(words)) {
        return mapped(words);
    }
    std::string bytes;
    for (qsizetype start = 0; start < words.size();) {
        qsizetype end = start + 1;
        while (end < words.size() && words[end].isMark()) {
            ++end;
        }
        bytes += mapped(held(words.sliced(start, end - start)));
        start = end;
    }
    return bytes;
}

bool Codec::holds(QStringView words) const
{
    return std::ranges::all_of(words,
                               [this](QChar letter) { return bytes_.contains(letter.unicode()); });
}

std::string Codec::mapped(QStringView words) const
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(words.size()));
    for (QChar const letter : words) {
        if (!letter.isLowSurrogate()) { // The two halves of one character are one `?`.
            bytes += bytes_.value(letter.unicode(), '?');
        }
    }
    return bytes;
}

/// The letter with its marks in a form that the set holds, where there is one: as one character, or
/// as a letter and one mark behind it.
QString Codec::held(QStringView letter) const
{
    QString const whole = letter.toString().normalized(QString::NormalizationForm_C);
    QString const parts = whole.normalized(QString::NormalizationForm_D);
    for (qsizetype mark = parts.size() - 1; mark > 0 && !holds(whole); --mark) {
        QString const rest = QString(parts).remove(mark, 1);
        QString const apart = rest.normalized(QString::NormalizationForm_C) + parts[mark];
        if (holds(apart)) {
            return apart;
        }
    }
    return holds(letter) ? letter.toString() : whole;
}

text::CharacterSet Codec::letters() const
{
    text::CharacterSet::Table upper{};
    text::CharacterSet::Table lower{};
    auto const byte_of = [this](char16_t letter, std::size_t otherwise) {
        return static_cast<unsigned char>(bytes_.value(letter, static_cast<char>(otherwise)));
    };
    for (std::size_t byte = 0; byte < unicode_.size(); ++byte) {
        QChar const letter(unicode_[byte]);
        upper[byte] = byte_of(letter.toUpper().unicode(), byte);
        lower[byte] = byte_of(letter.toLower().unicode(), byte);
    }
    return text::CharacterSet(upper, lower);
}

int code_page_of(QLocale const& locale)
{
    using L = QLocale;
    static std::vector<std::pair<int, std::vector<L::Language>>> const pages{
        {1250,
         {L::Albanian, L::Bosnian, L::Croatian, L::Czech, L::Hungarian, L::Polish, L::Romanian,
          L::Serbian, L::Slovak, L::Slovenian, L::Turkmen}},
        {1251,
         {L::Belarusian, L::Bulgarian, L::Kazakh, L::Kirghiz, L::Macedonian, L::Mongolian,
          L::Russian, L::Tajik, L::Tatar, L::Ukrainian}},
        {1253, {L::Greek}},
        {1254, {L::Azerbaijani, L::Turkish, L::Uzbek}},
        {1255, {L::Hebrew, L::Yiddish}},
        {1256, {L::Arabic, L::Persian, L::Urdu}},
        {1257, {L::Estonian, L::Latvian, L::Lithuanian}},
        {1258, {L::Vietnamese}},
        {874, {L::Thai}},
    };
    for (auto const& [page, languages] : pages) {
        if (std::ranges::find(languages, locale.language()) != languages.end()) {
            return locale.script() == L::CyrillicScript ? 1251 : page;
        }
    }
    return 1252;
}

} // namespace qt
