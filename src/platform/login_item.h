#pragma once

namespace klarvik {

/// Whether the program starts by itself when its user logs in. Main thread only.
class LoginItem {
 public:
  enum class Status {
    notRegistered,
    enabled,
    notFound,  ///< this copy of the program is not one that can be started at login
  };

  virtual ~LoginItem() = default;
  /// What holds now, whoever changed it last.
  [[nodiscard]] virtual Status status() const = 0;
  /// False when that failed; nothing has changed then.
  virtual bool registerProgram() = 0;
  virtual bool unregisterProgram() = 0;
};

}  // namespace klarvik
