#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>
#include <stop_token>

#include "engine/root_command.h"
#include "platform/command_runners.h"
#include "platform/main_loop/background_tasks.h"

namespace klarvik {

/// What stands between a command that needs the rights of root and its run: it is shown first, run
/// when the user agrees, and what it printed is shown. Main thread only; everything handed in must
/// outlive it, and its destructor waits for a run, which it stops.
class RootRunModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(Phase phase READ phase NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString message READ message NOTIFY changed)
  Q_PROPERTY(QString command READ command NOTIFY changed)
  Q_PROPERTY(QString output READ output NOTIFY changed)

 public:
  enum class Phase { None, Asking, Running, Ended };
  Q_ENUM(Phase)

  /// `ended` is called after each run, whatever has come of it.
  RootRunModel(ToolRunner& tools, std::function<void()> ended, QObject* parent = nullptr);
  ~RootRunModel() override;

  [[nodiscard]] Phase phase() const { return _phase; }
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString message() const;
  /// Every argument of what is started; one that holds a space stands between quotation marks.
  [[nodiscard]] QString command() const;
  /// What it printed; empty before its end, and where it printed nothing.
  [[nodiscard]] QString output() const;

  /// Shows the command of `tool`, a row of the layout's table. Nothing while another is shown.
  void ask(const CleaningTool& tool);
  /// The user agrees.
  Q_INVOKABLE void run();
  /// Cancels the question or the wait, or closes what has come of it.
  Q_INVOKABLE void close();
  /// For the end of the program: a command that runs is not waited for.
  void stop() { _stop.request_stop(); }
  void finish();

 signals:
  void changed();

 private:
  QCoro::Task<> runTool();
  void setPhase(Phase phase);

  ToolRunner& _tools;
  std::function<void()> _ended;
  Phase _phase = Phase::None;
  const CleaningTool* _tool = nullptr;
  std::optional<RootRun> _result;
  std::stop_source _stop;
  BackgroundTasks _runs;
};

}  // namespace klarvik
