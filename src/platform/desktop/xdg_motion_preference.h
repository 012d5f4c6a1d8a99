#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <functional>
#include <utility>

#include "platform/desktop_services.h"

namespace klarvik {

/// Told by its settings portal, and by the settings file
/// of its toolkit until the portal has answered. The environment's KLARVIK_REDUCE_MOTION (1 or 0)
/// goes before both.
class XdgMotionPreference final : public QObject, public MotionPreference {
  Q_OBJECT

 public:
  XdgMotionPreference();

  [[nodiscard]] bool isReduced() const override { return _reduced; }
  void onChange(std::function<void()> listener) override { _listener = std::move(listener); }

 private slots:
  void takeSetting(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void askPortal();
  void setReduced(bool reduced);

  bool _reduced = false;
  std::function<void()> _listener;
};

}  // namespace klarvik
