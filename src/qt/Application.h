#pragma once

#include <QApplication>
#include <functional>
#include <new>

namespace hullwright {

/// The toolkit's application. Every event enters the program here: where memory ends in one, the
/// rest of it is left out, and the program goes on.
class Application : public QApplication {
public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override
  {
    return Deliver([&] { return QApplication::notify(receiver, event); }, onMemoryEnded);
  }

  /// What `deliver` returns; true, and `otherwise` is called, where memory ended in it.
  template <class Delivery>
  static bool Deliver(Delivery deliver, const std::function<void()>& otherwise)
  {
    try {
      return deliver();
    } catch (const std::bad_alloc&) {
      Call(otherwise);
      return true;
    }
  }

  /// Called behind an event that was left.
  std::function<void()> onMemoryEnded;

private:
  static void Call(const std::function<void()>& function)
  {
    try {
      if (function) function();
    } catch (const std::bad_alloc&) {
      return;  // nor is there any to say so
    }
  }
};

}  // namespace hullwright
