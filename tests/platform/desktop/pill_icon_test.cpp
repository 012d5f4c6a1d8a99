#include "platform/desktop/qt_status_item.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace klarvik {
namespace {

/// The upper half of the icon, fainter.
std::vector<StatusItem::Pill> halfFilled(double width, double height) {
  return {{0, 0, width, height / 2, 0, 0.5}};
}

QColor at(const QIcon& icon, int size, QPoint place) {
  return icon.pixmap(QSize(size, size)).toImage().pixelColor(place);
}

TEST(PillIcon, IsDrawnAtTheSizeThatIsAskedForInTheColourThatIsGiven) {
  const QIcon icon = pillIcon(halfFilled, QColor(10, 200, 30));
  for (const int size : {16, 22, 48}) {
    EXPECT_EQ(icon.pixmap(QSize(size, size)).size(), QSize(size, size));
    const QColor filled = at(icon, size, {size / 2, size / 4});
    EXPECT_NEAR(filled.alpha(), 128, 1) << size;
    EXPECT_NEAR(filled.green(), 200, 2) << size;
    EXPECT_EQ(at(icon, size, {size / 2, size - 2}).alpha(), 0) << size;
  }
}

TEST(PillIcon, IsEmptyWithoutADrawing) {
  EXPECT_TRUE(pillIcon(nullptr, Qt::black).isNull());
}

}  // namespace
}  // namespace klarvik
