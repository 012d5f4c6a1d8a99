#include "panes/smart_scan/root_run_model.h"

#include <QStringList>
#include <utility>

#include "panes/kit/row_text.h"
#include "panes/smart_scan/smart_scan_texts.h"
#include "translation/translation.h"

namespace klarvik {

RootRunModel::RootRunModel(ToolRunner& tools, std::function<void()> ended, QObject* parent)
    : QObject(parent), _tools(tools), _ended(std::move(ended)) {}

RootRunModel::~RootRunModel() {
  finish();
}

QString RootRunModel::title() const {
  switch (_phase) {
    case Phase::None:
      return {};
    case Phase::Asking:
      return translate("SmartScan", "Run this command as administrator?");
    case Phase::Running:
      return translate("SmartScan", "The command runs");
    case Phase::Ended:
      break;
  }
  return _result ? QString::fromStdString(smart_scan::rootRunTitle(*_result)) : QString();
}

QString RootRunModel::message() const {
  switch (_phase) {
    case Phase::None:
      return {};
    case Phase::Asking:
      return translate("SmartScan",
                       "It is run exactly as it stands here. The system asks for the password; "
                       "Klarvik never sees it.");
    case Phase::Running:
      return translate("SmartScan", "The system may be asking for the password now.");
    case Phase::Ended:
      break;
  }
  return _result ? QString::fromStdString(smart_scan::rootRunSentence(*_result)) : QString();
}

QString RootRunModel::command() const {
  if (_tool == nullptr) return {};
  QStringList arguments;
  for (const std::string& argument : rootCommand(*_tool)) {
    const QString text = printableText(argument);
    arguments << (text.contains(QLatin1Char(' ')) ? QStringLiteral("\"%1\"").arg(text) : text);
  }
  return arguments.join(QLatin1Char(' '));
}

QString RootRunModel::output() const {
  if (!_result) return {};
  QStringList lines;
  for (const QByteArray& line : QByteArray::fromStdString(_result->output).trimmed().split('\n')) {
    lines << printableText(line.toStdString());
  }
  return lines.join(QLatin1Char('\n'));
}

void RootRunModel::ask(const CleaningTool& tool) {
  if (_phase != Phase::None || tool.asRoot.empty()) return;
  _tool = &tool;
  setPhase(Phase::Asking);
}

void RootRunModel::run() {
  if (_phase == Phase::Asking) runTool();
}

void RootRunModel::close() {
  if (_phase == Phase::Running) {
    _stop.request_stop();
    return;
  }
  _tool = nullptr;
  _result.reset();
  setPhase(Phase::None);
}

void RootRunModel::finish() {
  stop();
  _runs.finish();
}

QCoro::Task<> RootRunModel::runTool() {
  _stop = {};
  setPhase(Phase::Running);
  auto run = [&tools = _tools, &tool = *_tool, stop = _stop.get_token()] {
    return runAsRoot(tools, tool, stop);
  };
  RootRun result = co_await runInBackground(_runs, std::move(run));
  _result = std::move(result);
  setPhase(Phase::Ended);
  _ended();
}

void RootRunModel::setPhase(Phase phase) {
  _phase = phase;
  emit changed();
}

}  // namespace klarvik
