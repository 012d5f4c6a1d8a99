#pragma once

#include <QQuickImageProvider>
#include <QUrl>
#include <string>

#include "base/paths.h"

namespace klarvik {

class FileSystem;

/// Where QML finds the icon that a desktop entry names; empty where the entry names none.
[[nodiscard]] QUrl applicationIconUrl(const std::string& icon);

/// Draws the icons that desktop entries name: by the icon theme of the desktop, or from a file.
/// What is no icon is an image of one point. Main thread only.
class ApplicationIcons final : public QQuickImageProvider {
 public:
  /// By this name an engine knows it.
  static constexpr auto name = "applicationIcon";

  /// `files` has to outlive it. Adds the folders of that disk to those of the icon theme.
  explicit ApplicationIcons(const FileSystem& files);

  QPixmap requestPixmap(const QString& id, QSize* size, const QSize& wanted) override;

 private:
  [[nodiscard]] QPixmap fromFile(const Path& path, const QSize& size) const;
  [[nodiscard]] static QPixmap fromTheme(QString icon, const QSize& size);

  const FileSystem& _files;
};

}  // namespace klarvik
