#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <string>

#include "platform/platform.h"
#include "platform/updater.h"

namespace klarvik {

class Formatting;

/// What stands in the updater's window: its words, its bar and its buttons.
struct UpdateWindowContent {
  static constexpr double noBar = -2;
  static constexpr double barWithoutEnd = -1;

  std::string title;
  std::string detail;
  std::string notes = {};
  std::string notesLink = {};
  double progress = noBar;   ///< 0 to 1, or one of the above
  std::string primary = {};  ///< empty: no such button
  std::string secondary = {};
  bool operator==(const UpdateWindowContent&) const = default;
};

/// For every stage but `Hidden`, of which there is nothing to say. `running` is the version that
/// runs here.
[[nodiscard]] UpdateWindowContent updateWindowContent(const UpdateStage& stage,
                                                      const std::string& running,
                                                      const Formatting& formatting);

/// The updater's own small window: what it has found, what it is doing, and the user's answers.
/// Main thread only; `desktop` must outlive it.
class UpdateWindowModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString detail READ detail NOTIFY changed)
  Q_PROPERTY(QString notes READ notes NOTIFY changed)
  Q_PROPERTY(bool hasNotesLink READ hasNotesLink NOTIFY changed)
  Q_PROPERTY(bool hasBar READ hasBar NOTIFY changed)
  Q_PROPERTY(bool barHasEnd READ barHasEnd NOTIFY changed)
  Q_PROPERTY(double progress READ progress NOTIFY changed)
  Q_PROPERTY(QString primary READ primary NOTIFY changed)
  Q_PROPERTY(QString secondary READ secondary NOTIFY changed)

 public:
  explicit UpdateWindowModel(const Desktop& desktop, QObject* parent = nullptr);
  ~UpdateWindowModel() override;

  [[nodiscard]] bool isShown() const { return _isShown; }
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString detail() const;
  [[nodiscard]] QString notes() const;
  [[nodiscard]] bool hasNotesLink() const { return !_content.notesLink.empty(); }
  [[nodiscard]] bool hasBar() const { return _content.progress != UpdateWindowContent::noBar; }
  [[nodiscard]] bool barHasEnd() const { return _content.progress >= 0; }
  [[nodiscard]] double progress() const { return _content.progress; }
  [[nodiscard]] QString primary() const;
  [[nodiscard]] QString secondary() const;

  Q_INVOKABLE void goOn();
  /// Also when the window is closed.
  Q_INVOKABLE void dismiss();
  Q_INVOKABLE void openNotes();

 signals:
  void isShownChanged();
  void changed();
  /// The user has asked for what is shown, so that it belongs before all other windows.
  void isAskedFor();

 private:
  void show(const UpdateStage& stage);

  const Desktop& _desktop;
  UpdateWindowContent _content;
  bool _isShown = false;
};

}  // namespace klarvik
