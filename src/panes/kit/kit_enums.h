#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "places/category_type.h"

/// The choices that the elements take, by the names that QML knows them by.

namespace klarvik::SelectionState {
Q_NAMESPACE
QML_ELEMENT
enum Value { None, Partial, All };
Q_ENUM_NS(Value)
}  // namespace klarvik::SelectionState

namespace klarvik::Safety {
Q_NAMESPACE
QML_ELEMENT
enum Level { Safe, Caution };
Q_ENUM_NS(Level)
static_assert(Safe == static_cast<int>(SafetyLevel::safe));
static_assert(Caution == static_cast<int>(SafetyLevel::caution));
}  // namespace klarvik::Safety

namespace klarvik::KeepOrDelete {
Q_NAMESPACE
QML_ELEMENT
enum Value { Keep, Delete, Neither };
Q_ENUM_NS(Value)
}  // namespace klarvik::KeepOrDelete

namespace klarvik::LoadingStyle {
Q_NAMESPACE
QML_ELEMENT
enum Value {
  Reading,  ///< the program reads the disk
  Working,  ///< the program changes something
};
Q_ENUM_NS(Value)
}  // namespace klarvik::LoadingStyle

namespace klarvik::ButtonRole {
Q_NAMESPACE
QML_ELEMENT
enum Value { Normal, Cancel, Destructive };
Q_ENUM_NS(Value)
}  // namespace klarvik::ButtonRole

/// What stands on top of a placeholder.
namespace klarvik::PlaceholderTop {
Q_NAMESPACE
QML_ELEMENT
enum Value { Progress, Loader, Icon };
Q_ENUM_NS(Value)
}  // namespace klarvik::PlaceholderTop
