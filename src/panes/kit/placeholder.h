#pragma once

#include <QtQml/qqmlregistration.h>
#include <QMetaType>
#include <QString>

namespace klarvik {

/// What a pane that has nothing to list shows in place of its rows.
struct Placeholder {
  Q_GADGET
  QML_VALUE_TYPE(placeholder)
  Q_PROPERTY(bool isShown MEMBER isShown)
  Q_PROPERTY(bool isBusy MEMBER isBusy)
  Q_PROPERTY(QString icon MEMBER icon)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString detail MEMBER detail)
  Q_PROPERTY(QString actionTitle MEMBER actionTitle)

 public:
  /// With a loader on top.
  [[nodiscard]] static Placeholder busy(const QString& title, const QString& detail) {
    return {true, true, {}, title, detail, {}};
  }
  [[nodiscard]] static Placeholder idle(const QString& icon, const QString& title,
                                        const QString& detail, const QString& actionTitle = {}) {
    return {true, false, icon, title, detail, actionTitle};
  }

  bool isShown = false;
  bool isBusy = false;
  QString icon;
  QString title;
  QString detail;
  QString actionTitle;  ///< empty where there is no button

  bool operator==(const Placeholder&) const = default;
};

}  // namespace klarvik
