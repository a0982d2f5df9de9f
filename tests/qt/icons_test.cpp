// The pictures that come with the library.
#include "qt/colors.h"
#include "qt/images.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPicture>

#include <gmock/gmock.h>

#include <cmath>

namespace quill::qt::test {

namespace {

const std::vector<std::string> kKeys = {"deviceFailure",
                                        "deviceUnderTest",
                                        "deviceOffSpecification",
                                        "deviceMaintenanceRequired",
                                        "deviceOk",
                                        "deviceInfo",
                                        "deviceDiagnosisPassiv",
                                        "failsafe",
                                        "alarm",
                                        "warning",
                                        "info",
                                        "ok",
                                        "inactive",
                                        "notMonitored",
                                        "unknown",
                                        "checkEnabled",
                                        "checkDisabled",
                                        "modified",
                                        "checkEnabledmodified",
                                        "checkDisabledmodified",
                                        "error",
                                        "currentStep",
                                        "stepDone",
                                        "restore",
                                        "restoreAll"};

/// A picture on a ground, without its colours if need be.
QImage drawn(const std::string& key, int size, const QColor& ground)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    Images::find(key).paint(&painter, image.rect());
    painter.end();
    return image;
}

double lightness(const QColor& color)
{
    return 0.299 * color.red() + 0.587 * color.green() + 0.114 * color.blue();
}

/// How many of the pixels are clearly lighter or darker in the one than in the other.
int differences(const QImage& a, const QImage& b)
{
    constexpr double kClearly = 40;
    int              count    = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count +=
                std::abs(lightness(a.pixelColor(x, y)) - lightness(b.pixelColor(x, y))) > kClearly;
        }
    }
    return count;
}

TEST(BuiltInPictures, EveryKeyOfTheControlsHasOneAndNothingElseLiesThere)
{
    QStringList keys;
    for (const auto& key : kKeys) {
        EXPECT_FALSE(Images::find(key).isNull()) << key;
        keys << QString::fromStdString(key);
    }
    QStringList files = QDir(QStringLiteral(":/quill/icons")).entryList();
    files.replaceInStrings(QStringLiteral(".svg"), QString());
    keys.sort();
    files.sort();
    EXPECT_EQ(files.join(u' ').toStdString(), keys.join(u' ').toStdString());
}

TEST(BuiltInPictures, AnUnknownKeyHasNone)
{
    for (const char* key : {"", "nobody has this", "../ok", "ok.svg", "OK"}) {
        EXPECT_TRUE(Images::find(key).isNull()) << key;
    }
}

TEST(BuiltInPictures, EachIsToldFromEveryOtherWithoutColours)
{
    constexpr int kSize  = 16;
    constexpr int kLeast = 10; // pixels of 256
    for (const QColor& ground : {QColor(Qt::white), QColor(0x16, 0x19, 0x1c)}) {
        for (std::size_t a = 0; a < kKeys.size(); ++a) {
            for (std::size_t b = a + 1; b < kKeys.size(); ++b) {
                EXPECT_GE(
                    differences(drawn(kKeys[a], kSize, ground), drawn(kKeys[b], kSize, ground)),
                    kLeast)
                    << kKeys[a] << " and " << kKeys[b] << " on " << ground.name().toStdString();
            }
        }
    }
}

TEST(BuiltInPictures, EachIsSeenOnEveryGround)
{
    constexpr int kSize  = 16;
    constexpr int kLeast = 15;
    for (const QColor& ground :
         {QColor(Qt::white), QColor(0x16, 0x19, 0x1c), QColor(0x0b, 0x6b, 0x82)}) {
        for (const auto& key : kKeys) {
            const QImage image = drawn(key, kSize, ground);
            int          seen  = 0;
            for (int y = 0; y < kSize; ++y) {
                for (int x = 0; x < kSize; ++x) {
                    seen += contrast(image.pixelColor(x, y), ground) >= 3.0;
                }
            }
            EXPECT_GE(seen, kLeast) << key << " on " << ground.name().toStdString();
        }
    }
}

TEST(BuiltInPictures, AreDrawnAnewForEverySizeAndDensity)
{
    const QIcon icon = Images::find("deviceFailure");
    for (const int size : {16, 20, 24, 32, 48, 64}) {
        for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
            const QPixmap pixmap = icon.pixmap(QSize(size, size), ratio);
            EXPECT_EQ(pixmap.width(), std::lround(size * ratio));
            EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
        }
    }
    // A picture that were scaled up would have many more colours between its edge and its ground.
    const auto soft = [&](int size) {
        const QImage image = icon.pixmap(QSize(size, size), 1.0).toImage();
        int          count = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const int alpha = image.pixelColor(x, y).alpha();
                count += alpha > 0 && alpha < 255;
            }
        }
        return count;
    };
    EXPECT_LE(soft(64), 5 * soft(16));
    EXPECT_EQ(icon.actualSize(QSize(64, 64)), QSize(64, 64));
}

TEST(BuiltInPictures, KeepTheirShapeInAPlaceThatIsNoSquare)
{
    const QImage image = Images::find("deviceOk").pixmap(QSize(64, 16), 1.0).toImage();
    EXPECT_EQ(image.pixelColor(8, 8).alpha(), 0);
    EXPECT_EQ(image.pixelColor(32, 2).alpha(), 255);
    EXPECT_EQ(image.pixelColor(56, 8).alpha(), 0);
}

TEST(BuiltInPictures, OfADisabledWidgetAreGreyAndOfASelectedRowTheSame)
{
    const QIcon  icon     = Images::find("deviceFailure");
    const QImage disabled = icon.pixmap(QSize(32, 32), 1.0, QIcon::Disabled).toImage();
    const QColor grey     = disabled.pixelColor(16, 4);
    EXPECT_EQ(grey.red(), grey.green());
    EXPECT_LT(grey.alpha(), 200);
    EXPECT_GT(grey.alpha(), 0);
    EXPECT_EQ(icon.pixmap(QSize(32, 32), 1.0, QIcon::Selected).toImage(),
              icon.pixmap(QSize(32, 32), 1.0, QIcon::Normal).toImage());
}

TEST(BuiltInPictures, ArePrintedAsDrawings)
{
    QPicture picture;
    QPainter painter(&picture);
    Images::find("ok").paint(&painter, QRect(0, 0, 16, 16));
    painter.end();
    QImage large(160, 160, QImage::Format_ARGB32_Premultiplied);
    large.fill(Qt::white);
    QPainter scaled(&large);
    scaled.scale(10, 10);
    scaled.drawPicture(0, 0, picture);
    scaled.end();
    EXPECT_LE(differences(large, drawn("ok", 160, Qt::white)), 160);
}

TEST(BuiltInPictures, AProgramsPictureGoesFirst)
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    Images::put("ok", red);
    EXPECT_EQ(Images::find("ok").pixmap(16).toImage().pixelColor(0, 0), QColor(Qt::red));
    Images::put("ok", QIcon{});
    EXPECT_EQ(Images::find("ok").pixmap(16).toImage().pixelColor(0, 0).alpha(), 0);
    EXPECT_FALSE(Images::find("ok").isNull());
}

} // namespace

} // namespace quill::qt::test
