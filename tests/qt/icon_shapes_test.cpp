// The classes of NE 107 by shape and colour, as a technician knows them from other devices.
#include "qt/images.h"

#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>

namespace quill::qt::test {

namespace {

/// A picture on nothing, so that its outline is where something is painted.
QImage drawn(const char* key, int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Images::find(key).paint(&painter, image.rect());
    return image;
}

/// The width of the outline at a height, 0 at its top and 1 at its bottom, as a part of the
/// greatest width.
class Outline {
public:
    explicit Outline(const QImage& image)
    {
        constexpr int kPainted = 128;
        for (int y = 0; y < image.height(); ++y) {
            int left  = image.width();
            int right = -1;
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) >= kPainted) {
                    left  = std::min(left, x);
                    right = x;
                }
            }
            if (right >= left) {
                mWidths.push_back(right - left + 1);
            }
        }
    }
    [[nodiscard]] double at(double height) const
    {
        const auto row =
            static_cast<std::size_t>(std::lround(height * static_cast<double>(mWidths.size() - 1)));
        return static_cast<double>(mWidths.at(row)) /
               *std::max_element(mWidths.begin(), mWidths.end());
    }
    [[nodiscard]] std::size_t height() const { return mWidths.size(); }

private:
    std::vector<int> mWidths;
};

/// The colour that fills most of it.
QColor fillOf(const QImage& image)
{
    constexpr int               kOpaque = 250;
    constexpr unsigned          kCoarse = 0xFFF0F0F0;
    std::map<QRgb, int>         counts;
    std::pair<int, const QRgb*> most{0, nullptr};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= kOpaque) {
                ++counts[image.pixel(x, y) & kCoarse];
            }
        }
    }
    for (const auto& [color, count] : counts) {
        if (count > most.first) {
            most = {count, &color};
        }
    }
    return most.second == nullptr ? QColor{} : QColor(*most.second);
}

class NamurPictures : public testing::TestWithParam<int> {
protected:
    static void expectHue(const char* key, const QColor& fill, int from, int to)
    {
        EXPECT_GT(fill.hsvSaturation(), 100) << key << " " << fill.name().toStdString();
        const int hue = fill.hsvHue();
        EXPECT_TRUE(from <= to ? hue >= from && hue <= to : hue >= from || hue <= to)
            << key << " " << fill.name().toStdString() << " hue " << hue;
    }
    /// A triangle, followed from its side to its point.
    static void expectNarrowing(const Outline& outline, const std::vector<double>& heights)
    {
        EXPECT_GT(outline.at(heights.front()), 0.8);
        EXPECT_LT(outline.at(heights.back()), 0.4);
        for (std::size_t i = 2; i + 1 < heights.size(); ++i) {
            EXPECT_GT(outline.at(heights[i - 1]), outline.at(heights[i])) << heights[i];
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Sizes, NamurPictures, testing::Values(16, 20, 24, 32, 48, 64));

TEST_P(NamurPictures, AFailureIsARedCircle)
{
    const QImage  image = drawn("deviceFailure", GetParam());
    const Outline outline(image);
    expectHue("deviceFailure", fillOf(image), 340, 15);
    EXPECT_GT(outline.at(0.5), 0.95);
    for (const double height : {0.1, 0.25}) { // of a circle with this diameter
        const double width = 2 * std::sqrt(height * (1 - height));
        EXPECT_NEAR(outline.at(height), width, 0.16) << height;
        EXPECT_NEAR(outline.at(1 - height), width, 0.16) << height;
    }
}

TEST_P(NamurPictures, AFunctionCheckIsAnOrangeTriangleThatPointsDown)
{
    const QImage image = drawn("deviceUnderTest", GetParam());
    expectHue("deviceUnderTest", fillOf(image), 18, 42);
    expectNarrowing(Outline(image), {0.1, 0.25, 0.5, 0.75, 0.9});
}

TEST_P(NamurPictures, OutOfSpecificationIsAYellowTriangleThatPointsUp)
{
    const QImage image = drawn("deviceOffSpecification", GetParam());
    expectHue("deviceOffSpecification", fillOf(image), 43, 65);
    expectNarrowing(Outline(image), {0.9, 0.75, 0.5, 0.25, 0.1});
}

TEST_P(NamurPictures, MaintenanceRequiredIsABlueDiamond)
{
    const QImage  image = drawn("deviceMaintenanceRequired", GetParam());
    const Outline outline(image);
    // Beside the can, which is white and large.
    const QColor fill = image.pixelColor(image.width() / 2, image.height() / 5);
    expectHue("deviceMaintenanceRequired", fill, 195, 235);
    EXPECT_GT(outline.at(0.5), 0.9);
    for (const double height : {0.1, 0.25}) {
        EXPECT_NEAR(outline.at(height), 2 * height, 0.2) << height;
        EXPECT_NEAR(outline.at(1 - height), 2 * height, 0.2) << height;
    }
}

TEST_P(NamurPictures, GoodIsAGreenSquare)
{
    const QImage  image = drawn("deviceOk", GetParam());
    const Outline outline(image);
    expectHue("deviceOk", fillOf(image), 90, 165);
    for (const double height : {0.1, 0.3, 0.5, 0.7, 0.9}) { // but for the round corners
        EXPECT_GT(outline.at(height), 0.85) << height;
    }
}

TEST_P(NamurPictures, APassiveDiagnosisIsAWhiteSquare)
{
    const QImage  image = drawn("deviceDiagnosisPassiv", GetParam());
    const Outline outline(image);
    const QColor  fill = fillOf(image);
    EXPECT_GT(fill.lightness(), 235) << fill.name().toStdString();
    EXPECT_LT(fill.hsvSaturation(), 20);
    for (const double height : {0.1, 0.3, 0.5, 0.7, 0.9}) { // but for the round corners
        EXPECT_GT(outline.at(height), 0.85) << height;
    }
}

TEST_P(NamurPictures, EachFillsItsPlace)
{
    for (const char* key : {"deviceFailure", "deviceUnderTest", "deviceOffSpecification",
                            "deviceMaintenanceRequired", "deviceOk", "deviceDiagnosisPassiv",
                            "failsafe", "alarm", "warning", "info", "ok", "inactive"}) {
        const Outline outline(drawn(key, GetParam()));
        EXPECT_GE(static_cast<double>(outline.height()), 0.75 * GetParam()) << key;
    }
}

} // namespace

} // namespace quill::qt::test
