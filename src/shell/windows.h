#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QString>
#include <QUrl>
#include <QVariantMap>
#include <map>
#include <memory>

#include "platform/platform.h"

namespace klarvik {

/// The identifiers that windows are opened by.
inline constexpr const char* mainWindowId = "main";
inline constexpr const char* settingsWindowId = "settings";
inline constexpr const char* updateWindowId = "update";

/// How large a window's content may be, in points.
struct WindowFrame {
  QSize minimum;
  QSize initial;
  QSize maximum;

  /// The largest size that a window can be told of.
  static constexpr QSize unbounded{(1 << 24) - 1, (1 << 24) - 1};
  /// Of a window that cannot be resized.
  [[nodiscard]] static WindowFrame fixed(const QSize& size) { return {size, size, size}; }
};

/// Gives a window its frame. One that is on the screen stays where its middle is.
void fit(QWindow& window, const WindowFrame& frame);

/// Every window of the program, by its identifier; all are drawn by one engine. Main thread only.
class Windows {
 public:
  /// `desktop` must outlive this.
  explicit Windows(const Desktop& desktop);

  /// What draws the windows, with every module of the program in it.
  [[nodiscard]] QQmlEngine& engine() { return _engine; }

  /// Makes a window, with its identifier as its object name; it is not shown yet, and lies over the
  /// middle of the main window where that is on the screen. Whatever stands in `properties` must
  /// outlive it. Nothing when it cannot be drawn.
  QQuickWindow* make(const QString& id, const QUrl& view, const QVariantMap& properties,
                     const WindowFrame& frame);
  /// Nothing when it has not been made, or is gone.
  [[nodiscard]] QQuickWindow* find(const QString& id) const;
  void discard(const QString& id);

 private:
  void placeOverMainWindow(QQuickWindow& window) const;

  QQmlEngine _engine;
  std::map<QString, std::unique_ptr<QQuickWindow>> _windows;
};

}  // namespace klarvik
