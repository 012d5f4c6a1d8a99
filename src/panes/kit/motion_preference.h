#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace klarvik {

/// Whether the desktop asks for less motion: told by its settings portal, and by the settings file
/// of its toolkit until the portal has answered. The environment's KLARVIK_REDUCE_MOTION (1 or 0)
/// goes before both.
class MotionPreference : public QObject {
  Q_OBJECT

 public:
  explicit MotionPreference(QObject* parent = nullptr);

  [[nodiscard]] bool isReduced() const { return _reduced; }

 signals:
  void changed();

 private slots:
  void takeSetting(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void askPortal();
  void setReduced(bool reduced);

  bool _reduced = false;
};

}  // namespace klarvik
