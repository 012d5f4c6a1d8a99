#include "panes/kit/kit.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QtGlobal>
#include <cstdint>
#include <limits>
#include <utility>

#include "panes/kit/kit_enums.h"
#include "panes/kit/loader_timeline.h"
#include "panes/kit/palette.h"
#include "panes/kit/row_text.h"
#include "panes/kit/tool_rules.h"
#include "places/disk_layout.h"
#include "platform/desktop_services.h"
#include "platform/formatting.h"
#include "translation/translation.h"

void qml_register_types_Klarvik_Kit();

namespace klarvik {
namespace {

constexpr auto kitProperty = "klarvikKit";

std::int64_t wholeBytes(double bytes) {
  constexpr auto limit = static_cast<double>(std::numeric_limits<std::int64_t>::max());
  if (bytes >= limit) return std::numeric_limits<std::int64_t>::max();
  return bytes > -limit ? static_cast<std::int64_t>(bytes) : 0;
}

/// Keys of a command leave the focus where it is.
bool moves(const QKeyEvent& key) {
  const bool isModifier = key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock;
  return !isModifier &&
         !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

void installKit(QQmlEngine& engine, KitServices services) {
  qml_register_types_Klarvik_Kit();
  if (!loadSymbolFont()) qFatal("The symbol font is missing from the program.");
  engine.addImportPath("qrc:/");
  engine.setProperty(kitProperty, QVariant::fromValue(new Kit(std::move(services), &engine)));
}

Kit::Kit(KitServices services, QObject* parent) : QObject(parent), _services(std::move(services)) {
  _services.motion.onChange([this] { emit reduceMotionChanged(); });
  QCoreApplication::instance()->installEventFilter(this);
}

Kit::~Kit() {
  _services.motion.onChange({});
}

bool Kit::eventFilter(QObject* /*watched*/, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress && moves(*static_cast<QKeyEvent*>(event));
  const bool isPointer =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
  if ((isKey || isPointer) && _usesKeys != isKey) {
    _usesKeys = isKey;
    emit usesKeysChanged();
  }
  return false;
}

Kit& Kit::of(const QQmlEngine& engine) {
  return *engine.property(kitProperty).value<Kit*>();
}

Kit* Kit::create(QQmlEngine* engine, QJSEngine* /*scripts*/) {
  Kit* kit = &of(*engine);
  QJSEngine::setObjectOwnership(kit, QJSEngine::CppOwnership);
  return kit;
}

bool Kit::reduceMotion() const {
  return _services.motion.isReduced();
}

const DiskLayout& Kit::layout() const {
  return layoutFor(_services.home);
}

QString Kit::withSizesUnbroken(const QString& text) const {
  return klarvik::withSizesUnbroken(text);
}

QString Kit::byteText(double bytes) const {
  return QString::fromStdString(_services.formatting.byteText(wholeBytes(bytes)));
}

QString Kit::folderLine(const QUrl& item) const {
  return item.isEmpty() ? QString() : klarvik::folderLine(pathOfUrl(item), _services.home);
}

void Kit::reveal(const QUrl& item) {
  if (hasPath(item)) _services.workspace.reveal(pathOfUrl(item));
}

ToolPaneState Kit::toolPane(const QString& actionTitle, bool hasAction, bool isBusy,
                            bool rowsShowLoader) const {
  return toolPaneState(actionTitle, hasAction, isBusy, rowsShowLoader);
}

ToolFooterState Kit::toolFooter(const QString& selectionSummary, const QString& explanation,
                                const QString& buttonTitle, bool isEnabled, bool isBusy,
                                const RemovalProgress& progress, bool canStop) const {
  return toolFooterState({.selectionSummary = selectionSummary,
                          .explanation = explanation,
                          .buttonTitle = buttonTitle,
                          .isEnabled = isEnabled,
                          .isBusy = isBusy,
                          .progress = progress.progress,
                          .canStop = canStop},
                         _services.formatting);
}

int Kit::placeholderTop(double progress, bool isBusy) const {
  return klarvik::placeholderTop(progress, isBusy);
}

int Kit::rowReachedBy(int key, int row, int rowCount, int rowsInSight) const {
  return klarvik::rowReachedBy(key, {.row = row, .rowCount = rowCount, .rowsInSight = rowsInSight})
      .value_or(-1);
}

QString Kit::safetyText(int level) const {
  return verdictText(static_cast<SafetyLevel>(level));
}

QString Kit::fateText(int fate) const {
  if (fate == KeepOrDelete::Neither) return {};
  return fate == KeepOrDelete::Keep ? translate("Kit", "KEEP") : translate("Kit", "DELETE");
}

QString Kit::selectionSymbol(int selection) const {
  switch (selection) {
    case SelectionState::Partial:
      return QStringLiteral("minus");
    case SelectionState::All:
      return QStringLiteral("checkmark");
    default:
      return {};
  }
}

QList<DonutArc> Kit::donutArcs(const QList<DonutSlice>& slices) const {
  return klarvik::donutArcs(slices);
}

QString Kit::donutSliceAt(const QList<DonutSlice>& slices, double x, double y, double size,
                          double thickness) const {
  return klarvik::donutSliceAt(slices, {x, y}, size, thickness);
}

double Kit::donutOpacity(const QString& id, const QString& highlighted) const {
  return klarvik::donutOpacity(id, highlighted);
}

QString Kit::shareText(double share) const {
  return klarvik::shareText(share);
}

double Kit::inlineLoaderOpacity(int dot, double seconds) const {
  return klarvik::inlineLoaderOpacity(dot, seconds, reduceMotion());
}

}  // namespace klarvik
