#include "qt/icons.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

constexpr int side = 16;

QImage drawn(QIcon const& icon)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, image.rect());
    return image;
}

struct Glyph : testing::Test {
    Glyph() { glyph.set_name(QStringLiteral("send")); }

    qt::Glyph glyph;
};

TEST_F(Glyph, IsMadeOnceForEachColour)
{
    auto const red = glyph.icon(Qt::red).cacheKey();
    auto const blue = glyph.icon(Qt::blue).cacheKey();

    EXPECT_NE(red, blue);
    EXPECT_EQ(glyph.icon(Qt::red).cacheKey(), red) << "else it leaves pictures at every paint";
    EXPECT_EQ(glyph.icon(Qt::blue).cacheKey(), blue);
}

TEST_F(Glyph, IsDrawnInItsColour)
{
    EXPECT_EQ(drawn(glyph.icon(Qt::red)), drawn(qt::glyph(QStringLiteral("send"), Qt::red)));
    EXPECT_NE(drawn(glyph.icon(Qt::red)), drawn(glyph.icon(Qt::blue)));
}

TEST_F(Glyph, AnotherNameIsAnotherPicture)
{
    auto const before = drawn(glyph.icon(Qt::red));
    glyph.set_name(QStringLiteral("recall"));
    EXPECT_NE(drawn(glyph.icon(Qt::red)), before);
}

} // namespace
