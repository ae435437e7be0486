// Pictures of patterns: orientation, dashes and dots, clipping to the
// square, units, and families too fine or too odd to draw.
#include "hostsdk/patterns/PatFile.h"
#include "hostsdk/patterns/PatPatternImage.h"

#include <gtest/gtest.h>

namespace {

PatPattern patternOf(const char* text)
{
  PatFile file;
  OdString error;
  EXPECT_TRUE(file.parse(text, "t.pat", &error)) << error;
  return file.patterns().at(0);
}

bool black(const QImage& image, int x, int y)
{
  return image.pixelColor(x, y) == QColor(Qt::black);
}

int blackCount(const QImage& image)
{
  int n = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      n += black(image, x, y);
  return n;
}

TEST(PatPatternImage, onlyBlackOnWhiteAtTheAskedSize)
{
  const QImage image = PatPatternImage::draw(patternOf("*A\n45,0,0,0,1\n0,0,0,0,2,1,-1\n"), 24);
  ASSERT_EQ(image.size(), QSize(24, 24));
  for (int y = 0; y < 24; ++y)
    for (int x = 0; x < 24; ++x) {
      const QColor c = image.pixelColor(x, y);
      EXPECT_TRUE(c == QColor(Qt::black) || c == QColor(Qt::white)) << x << "," << y;
    }
}

// Drawn lines go up to the right for 45 degrees (Y points up in a pattern,
// down in a picture).
TEST(PatPatternImage, fortyFiveDegreesRiseToTheRight)
{
  const QImage image = PatPatternImage::draw(patternOf("*A\n45,0,0,0,1\n"), 64);
  int along = 0, across = 0;
  for (int y = 1; y < 63; ++y)
    for (int x = 1; x < 63; ++x)
      if (black(image, x, y)) {
        along += black(image, x + 1, y - 1);
        across += black(image, x + 1, y + 1);
      }
  EXPECT_GT(along, 100);
  EXPECT_EQ(across, 0);
}

TEST(PatPatternImage, horizontalLinesFillWholeRows)
{
  const QImage image = PatPatternImage::draw(patternOf("*LINE\n0,0,0,0,1\n"), 32);
  int rows = 0;
  for (int y = 0; y < 32; ++y) {
    int n = 0;
    for (int x = 0; x < 32; ++x)
      n += black(image, x, y);
    EXPECT_TRUE(n == 0 || n == 32) << "row " << y << " is clipped to the square, not cut short";
    rows += n == 32;
  }
  EXPECT_GE(rows, 3);
  EXPECT_LE(rows, 16) << "lines stay at least two pixels apart";
}

TEST(PatPatternImage, dashesLeaveGapsAndDotsShow)
{
  const QImage dashed = PatPatternImage::draw(patternOf("*D\n0,0,0,0,1,1,-1\n"), 64);
  // The same period with the pen always down, so that both come out at
  // one scale.
  const QImage solid = PatPatternImage::draw(patternOf("*L\n0,0,0,0,1,2\n"), 64);
  EXPECT_GT(blackCount(dashed), blackCount(solid) / 3);
  EXPECT_LT(blackCount(dashed), blackCount(solid) * 2 / 3);

  const QImage dots = PatPatternImage::draw(patternOf("*DOTS\n0,0,0,0,1,0,-1\n"), 64);
  EXPECT_GT(blackCount(dots), 0);
  EXPECT_LT(blackCount(dots), blackCount(dashed));
  const QImage hidden = PatPatternImage::draw(patternOf("*GAPS\n0,0,0,0,1,-1\n"), 64);
  EXPECT_EQ(blackCount(hidden), 0) << "a family that never puts the pen down draws nothing";
}

TEST(PatPatternImage, largeAndTinyUnitsLookAlike)
{
  // The picture does not depend on the unit the file was written in.
  const QImage metric = PatPatternImage::draw(patternOf("*A\n45,0,0,0,3.175\n90,0,0,0,3.175,3.175,-3.175\n"), 32);
  const QImage imperial = PatPatternImage::draw(patternOf("*A\n45,0,0,0,.125\n90,0,0,0,.125,.125,-.125\n"), 32);
  // Lines that fall on pixel edges may round the other way.
  EXPECT_GT(blackCount(metric), 100);
  EXPECT_NEAR(blackCount(metric), blackCount(imperial), blackCount(metric) / 10);
}

TEST(PatPatternImage, degenerateFamiliesDoNotHang)
{
  // Lines on top of each other, dashes of length 0 only, spacing far below
  // a pixel: each is drawn or left out, quickly.
  for (const char* text : {"*A\n0,0,0,5,0\n", "*B\n0,0,0,0,1,0\n", "*C\n30,0,0,0,1e-9,1e-9,-1e-9\n",
                           "*D\n0,0,0,0,1e9\n0,0,0,0,1,1e-12,-1e-12\n"}) {
    const QImage image = PatPatternImage::draw(patternOf(text), 64);
    EXPECT_EQ(image.size(), QSize(64, 64)) << text;
  }
}

} // namespace
