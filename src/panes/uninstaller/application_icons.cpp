#include "panes/uninstaller/application_icons.h"

#include <QBuffer>
#include <QByteArray>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <algorithm>

#include "platform/file_system.h"

namespace klarvik {
namespace {

constexpr std::size_t longestName = 255;
constexpr std::size_t largestFile = 8UL * 1024 * 1024;
constexpr int largestSide = 4096;  // points, of what a file holds
constexpr int usualSide = 64;
constexpr int largestShownSide = 512;

QString percentEncoded(const std::string& text) {
  return QString::fromLatin1(QByteArray::fromStdString(text).toPercentEncoding());
}

}  // namespace

QUrl applicationIconUrl(const std::string& icon) {
  const bool isPath = icon.starts_with('/');
  if (icon.empty() || icon.find('\0') != std::string::npos) return {};
  // A path that is not whole counts from nowhere.
  if (!isPath && (icon.find('/') != std::string::npos || icon.size() > longestName)) return {};
  if (icon.size() > largestShownSide * 8) return {};
  return QUrl(QStringLiteral("image://%1/%2").arg(ApplicationIcons::name, percentEncoded(icon)));
}

ApplicationIcons::ApplicationIcons(const FileSystem& files)
    : QQuickImageProvider(QQuickImageProvider::Pixmap), _files(files) {
  QStringList folders = QIcon::themeSearchPaths();
  const auto add = [&](QStringList& list, const Path& folder) {
    const QString path = QString::fromStdString(_files.diskPath(folder).native());
    if (!list.contains(path)) list << path;
  };
  const Path data = files.folders().data;
  for (const Path& folder : {data / "icons", data / "flatpak/exports/share/icons",
                             Path("/var/lib/flatpak/exports/share/icons"),
                             Path("/usr/local/share/icons"), Path("/usr/share/icons")}) {
    add(folders, folder);
  }
  QIcon::setThemeSearchPaths(folders);
  QStringList pictures = QIcon::fallbackSearchPaths();
  add(pictures, "/usr/share/pixmaps");
  QIcon::setFallbackSearchPaths(pictures);
  if (QIcon::themeName().isEmpty()) QIcon::setThemeName(QStringLiteral("hicolor"));
}

QPixmap ApplicationIcons::requestPixmap(const QString& id, QSize* size, const QSize& wanted) {
  const auto side = [](int asked) {
    return asked > 0 ? std::min(asked, largestShownSide) : usualSide;
  };
  const QSize shown(side(wanted.width()), side(wanted.height()));
  const QByteArray icon = QByteArray::fromPercentEncoding(id.toUtf8());
  QPixmap pixmap = icon.startsWith('/') ? fromFile(Path(icon.toStdString()), shown)
                                        : fromTheme(QString::fromUtf8(icon), shown);
  if (pixmap.isNull()) {
    pixmap = QPixmap(1, 1);
    pixmap.fill(Qt::transparent);
  }
  if (size != nullptr) *size = pixmap.size();
  return pixmap;
}

QPixmap ApplicationIcons::fromFile(const Path& path, const QSize& size) const {
  const auto content = textOfFile(_files, path, largestFile);
  if (!content) return {};
  QByteArray bytes = QByteArray::fromStdString(*content);
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::ReadOnly)) return {};
  QImageReader reader(&buffer);
  const QSize whole = reader.size();
  const bool isIcon =
      whole.isValid() && whole.width() <= largestSide && whole.height() <= largestSide;
  if (!isIcon) return {};
  reader.setScaledSize(whole.scaled(size, Qt::KeepAspectRatio));
  return QPixmap::fromImage(reader.read());
}

QPixmap ApplicationIcons::fromTheme(QString icon, const QSize& size) {
  for (const char* const extension : {".png", ".svg", ".xpm"}) {
    if (icon.endsWith(QLatin1String(extension))) icon.chop(4);
  }
  return QIcon::fromTheme(icon).pixmap(size, 1.0);
}

}  // namespace klarvik
