#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "panes/kit/row_text.h"
#include "places/disk_layout.h"

class QJSEngine;
class QQmlEngine;

namespace klarvik {

/// What QML needs of the disk's layout: the texts that name a system or a part of it. One for each
/// engine; main thread only.
class LayoutWords : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(Words)
  QML_SINGLETON
  Q_PROPERTY(bool asksForFullDiskAccess READ asksForFullDiskAccess CONSTANT)
  Q_PROPERTY(QString showInFileManager READ showInFileManager CONSTANT)
  Q_PROPERTY(QString openTrash READ openTrash CONSTANT)
  Q_PROPERTY(QString welcomeTitle READ welcomeTitle CONSTANT)
  Q_PROPERTY(QString welcomeText READ welcomeText CONSTANT)
  Q_PROPERTY(QString nothingLeaves READ nothingLeaves CONSTANT)
  Q_PROPERTY(QString keepInTray READ keepInTray CONSTANT)
  Q_PROPERTY(QString launchAtLoginUnavailable READ launchAtLoginUnavailable CONSTANT)
  Q_PROPERTY(QString showInTray READ showInTray CONSTANT)
  Q_PROPERTY(QString includeDeveloperCaches READ includeDeveloperCaches CONSTANT)
  Q_PROPERTY(QString reviewItemsAreSelected READ reviewItemsAreSelected CONSTANT)
  Q_PROPERTY(QString analysisFindsSafe READ analysisFindsSafe CONSTANT)
  Q_PROPERTY(QString analysisFindsSnapshots READ analysisFindsSnapshots CONSTANT)
  Q_PROPERTY(QString analysisFindsProtected READ analysisFindsProtected CONSTANT)
  Q_PROPERTY(QString applicationColumn READ applicationColumn CONSTANT)

 public:
  explicit LayoutWords(const DiskLayout& layout) : _layout(layout) {}

  /// Requires that the kit has been installed in `engine`.
  static LayoutWords* create(QQmlEngine* engine, QJSEngine* scripts);

  [[nodiscard]] bool asksForFullDiskAccess() const { return _layout.asksForFullDiskAccess(); }
  [[nodiscard]] QString showInFileManager() const { return programText(_words.showInFileManager); }
  [[nodiscard]] QString openTrash() const { return programText(_words.openTrash); }
  [[nodiscard]] QString welcomeTitle() const { return programText(_words.welcomeTitle); }
  [[nodiscard]] QString welcomeText() const { return programText(_words.welcomeText); }
  [[nodiscard]] QString nothingLeaves() const { return programText(_words.nothingLeaves); }
  [[nodiscard]] QString keepInTray() const { return programText(_words.keepInTray); }
  [[nodiscard]] QString launchAtLoginUnavailable() const {
    return programText(_words.launchAtLoginUnavailable);
  }
  [[nodiscard]] QString showInTray() const { return programText(_words.showInTray); }
  [[nodiscard]] QString includeDeveloperCaches() const {
    return programText(_words.includeDeveloperCaches);
  }
  [[nodiscard]] QString reviewItemsAreSelected() const {
    return programText(_words.reviewItemsAreSelected);
  }
  [[nodiscard]] QString analysisFindsSafe() const { return programText(_words.analysisFindsSafe); }
  [[nodiscard]] QString analysisFindsSnapshots() const {
    return programText(_words.analysisFindsSnapshots);
  }
  [[nodiscard]] QString analysisFindsProtected() const {
    return programText(_words.analysisFindsProtected);
  }
  [[nodiscard]] QString applicationColumn() const { return programText(_words.applicationColumn); }

 private:
  const DiskLayout& _layout;
  const Words& _words = _layout.words;
};

}  // namespace klarvik
