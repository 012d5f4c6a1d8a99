#include <QDir>
#include <QFile>

#include "kit_window.h"

namespace klarvik {
namespace {

QVariant manySlices() {
  return QVariant::fromValue(QList<DonutSlice>{
      {.id = "home", .label = "Home", .value = 42, .color = QColor(57, 135, 229)},
      {.id = "apps", .label = "Applications", .value = 31, .color = QColor(25, 158, 112)},
      {.id = "library", .label = "Library", .value = 18, .color = QColor(217, 89, 38)},
      {.id = "rest", .label = "macOS and everything else", .value = 9, .color = QColor(87, 87, 87)},
  });
}

class Gallery : public KitWindow {};

TEST_F(Gallery, DrawsEveryElementWithoutAWarning) {
  QFile file(KLARVIK_GALLERY);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const RemovalProgress progress(DeletionProgress{
      .completed = 2, .total = 10, .currentName = "DerivedData", .freed = 1'200'000});
  ASSERT_NE(showComponent(file.readAll(), QUrl::fromLocalFile(file.fileName()),
                          {{"progress", QVariant::fromValue(progress)}, {"slices", manySlices()}}),
            nullptr);
  clock.advance(std::chrono::milliseconds(400));
  settle();

  const QImage picture = view.grabWindow();
  ASSERT_EQ(picture.size(), QSize(1400, 1130));
  EXPECT_EQ(picture.pixelColor(890, 5), QColor(28, 28, 30));
  const QDir folder(KLARVIK_SCREENSHOTS);
  ASSERT_TRUE(folder.mkpath("."));
  EXPECT_TRUE(picture.save(folder.filePath("kit.png")));
}

}  // namespace
}  // namespace klarvik
