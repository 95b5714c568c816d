#include "qt/codec.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

using qt::Codec;

constexpr std::array pages{874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

QString words(char const* text)
{
    return QString::fromUtf8(text);
}

TEST(Codec, EveryByteOfEveryPageComesBackAsItWent)
{
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    for (int const page : pages) {
        Codec const codec(page);
        EXPECT_EQ(codec.from_unicode(codec.to_unicode(all)), all) << page;
        EXPECT_EQ(codec.to_unicode(all).size(), 256) << page;
    }
}

TEST(Codec, APageThatNobodyKnowsIsTheWesternOne)
{
    EXPECT_EQ(Codec(932).from_unicode(words("é €")), "\xe9 \x80");
}

TEST(Codec, WhatThePageLacksIsOneQuestionMark)
{
    EXPECT_EQ(Codec(1252).from_unicode(words("a語😀b")), "a??b");
}

TEST(Codec, ALetterAndItsAccentBecomeTheOneThatThePageHas)
{
    Codec const western(1252);
    EXPECT_EQ(western.from_unicode(words("Ame\u0301lie, u\u0308ber")), "Am\xe9lie, \xfc"
                                                                       "ber");
    EXPECT_EQ(Codec(1250).from_unicode(words("c\u030ca\u0301s")), "\xe8\xe1s");
    EXPECT_EQ(Codec(1251).from_unicode(words("\u0438\u0306")), "\xe9");
}

TEST(Codec, AnAccentWithoutALetterThatFitsIsAQuestionMark)
{
    Codec const western(1252);
    EXPECT_EQ(western.from_unicode(words("x\u0301")), "x?");
    EXPECT_EQ(western.from_unicode(words("\u0301")), "?");
    EXPECT_EQ(western.from_unicode(words("e\u0301\u0323!")), "?\?!");
}

TEST(Codec, AVietnameseLetterIsWrittenAsALetterAndItsTone)
{
    Codec const vietnamese(1258);
    EXPECT_EQ(vietnamese.from_unicode(words("\u1ebf")), "\xea\xec");
    EXPECT_EQ(vietnamese.from_unicode(words("\u1ead")), "\xe2\xf2");
    EXPECT_EQ(vietnamese.from_unicode(words("e\u0302\u0301")), "\xea\xec");
    EXPECT_EQ(vietnamese.from_unicode(words("e\u0301")), "e\xec")
        << "what the page holds as it stands stays so";
}

TEST(Codec, CapitalAndSmallLettersAreThoseOfThePage)
{
    EXPECT_EQ(Codec(1252).letters().upper("\xe9\xff"), "\xc9\x9f");
    EXPECT_EQ(Codec(1251).letters().lower("\xdf"), "\xff");
    EXPECT_EQ(Codec(1253).letters().upper("\xe1"), "\xc1");
}

struct PageOfLocale {
    char const* locale;
    int page;
};

struct Pages : testing::TestWithParam<PageOfLocale> {};

TEST_P(Pages, OfALocaleIsTheOneThatItsDesktopsUse)
{
    EXPECT_EQ(qt::code_page_of(QLocale(words(GetParam().locale))), GetParam().page);
}

INSTANTIATE_TEST_SUITE_P(
    Codec, Pages,
    testing::Values(
        PageOfLocale{"cs_CZ", 1250}, PageOfLocale{"pl_PL", 1250}, PageOfLocale{"hu_HU", 1250},
        PageOfLocale{"sk_SK", 1250}, PageOfLocale{"sl_SI", 1250}, PageOfLocale{"hr_HR", 1250},
        PageOfLocale{"ro_RO", 1250}, PageOfLocale{"sq_AL", 1250}, PageOfLocale{"sr_Latn_RS", 1250},
        PageOfLocale{"bs_BA", 1250}, PageOfLocale{"sr_RS", 1251}, PageOfLocale{"bs_Cyrl_BA", 1251},
        PageOfLocale{"ru_RU", 1251}, PageOfLocale{"uk_UA", 1251}, PageOfLocale{"bg_BG", 1251},
        PageOfLocale{"be_BY", 1251}, PageOfLocale{"mk_MK", 1251}, PageOfLocale{"kk_KZ", 1251},
        PageOfLocale{"az_Cyrl_AZ", 1251}, PageOfLocale{"uz_Cyrl_UZ", 1251},
        PageOfLocale{"el_GR", 1253}, PageOfLocale{"tr_TR", 1254}, PageOfLocale{"az_AZ", 1254},
        PageOfLocale{"he_IL", 1255}, PageOfLocale{"ar_EG", 1256}, PageOfLocale{"fa_IR", 1256},
        PageOfLocale{"ur_PK", 1256}, PageOfLocale{"et_EE", 1257}, PageOfLocale{"lv_LV", 1257},
        PageOfLocale{"lt_LT", 1257}, PageOfLocale{"vi_VN", 1258}, PageOfLocale{"th_TH", 874},
        PageOfLocale{"en_US", 1252}, PageOfLocale{"de_DE", 1252}, PageOfLocale{"fr_FR", 1252},
        PageOfLocale{"es_ES", 1252}, PageOfLocale{"is_IS", 1252}, PageOfLocale{"C", 1252},
        PageOfLocale{"ja_JP", 1252}, PageOfLocale{"zh_CN", 1252}),
    [](auto const& tested) { return std::string(tested.param.locale); });

} // namespace
