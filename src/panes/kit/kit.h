#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include "panes/kit/donut.h"
#include "panes/kit/tool_rules.h"

class QJSEngine;
class QQmlEngine;

namespace klarvik {

class Clock;
class Formatting;
class MotionPreference;
class Workspace;
struct DiskLayout;

/// What the elements need of the platform. The engine must not outlive what this refers to.
struct KitServices {
  const Formatting& formatting;
  Path home;
  Workspace& workspace;
  Clock& clock;
  MotionPreference& motion;
};

/// Makes the module `Klarvik.Kit` usable in `engine`. To be called once for each engine, on the
/// main thread, before its first QML is loaded.
void installKit(QQmlEngine& engine, KitServices services);

/// The rules behind the elements, as QML reaches them. One for each engine, made by `installKit`;
/// main thread only.
class Kit : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY reduceMotionChanged)
  /// Whether the user works with keys just now, and has to see where they go.
  Q_PROPERTY(bool usesKeys MEMBER _usesKeys NOTIFY usesKeysChanged)

 public:
  Kit(KitServices services, QObject* parent);
  ~Kit() override;

  /// Requires that the kit has been installed in `engine`.
  static Kit& of(const QQmlEngine& engine);
  static Kit* create(QQmlEngine* engine, QJSEngine* scripts);

  [[nodiscard]] Clock& clock() { return _services.clock; }
  /// Of the disk that the home lies on.
  [[nodiscard]] const DiskLayout& layout() const;
  [[nodiscard]] bool reduceMotion() const;

  /// A size in text; held to what 64 bits take.
  Q_INVOKABLE [[nodiscard]] QString byteText(double bytes) const;
  Q_INVOKABLE [[nodiscard]] QString withSizesUnbroken(const QString& text) const;
  Q_INVOKABLE [[nodiscard]] bool hasPath(const QUrl& url) const { return !url.isEmpty(); }
  Q_INVOKABLE [[nodiscard]] QString folderLine(const QUrl& item) const;
  Q_INVOKABLE void reveal(const QUrl& item);

  Q_INVOKABLE [[nodiscard]] klarvik::ToolPaneState toolPane(const QString& actionTitle,
                                                            bool hasAction, bool isBusy,
                                                            bool rowsShowLoader) const;
  Q_INVOKABLE [[nodiscard]] klarvik::ToolFooterState toolFooter(
      const QString& selectionSummary, const QString& explanation, const QString& buttonTitle,
      bool isEnabled, bool isBusy, const klarvik::RemovalProgress& progress, bool canStop) const;
  Q_INVOKABLE [[nodiscard]] int placeholderTop(double progress, bool isBusy) const;

  /// The row that a key leads to; -1 where it is none that moves by more than one row.
  Q_INVOKABLE [[nodiscard]] int rowReachedBy(int key, int row, int rowCount, int rowsInSight) const;

  Q_INVOKABLE [[nodiscard]] QString safetyText(int level) const;
  Q_INVOKABLE [[nodiscard]] QString fateText(int fate) const;
  Q_INVOKABLE [[nodiscard]] QString selectionSymbol(int selection) const;

  Q_INVOKABLE [[nodiscard]] QList<klarvik::DonutArc> donutArcs(
      const QList<klarvik::DonutSlice>& slices) const;
  Q_INVOKABLE [[nodiscard]] QString donutSliceAt(const QList<klarvik::DonutSlice>& slices, double x,
                                                 double y, double size, double thickness) const;
  Q_INVOKABLE [[nodiscard]] double donutOpacity(const QString& id,
                                                const QString& highlighted) const;
  Q_INVOKABLE [[nodiscard]] QString shareText(double share) const;
  Q_INVOKABLE [[nodiscard]] double inlineLoaderOpacity(int dot, double seconds) const;

 signals:
  void reduceMotionChanged();
  void usesKeysChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  KitServices _services;
  bool _usesKeys = false;
};

}  // namespace klarvik
