#pragma once

#include <QTest>

#include <initializer_list>
#include <tuple>
#include <type_traits>
#include <vector>

namespace tarnloft {

// The cases of a test: each has a name, and a value for each parameter of the check, which may take
// the name in front of them.
template <class... Values>
class Cases {
 public:
  using Case = std::tuple<const char*, Values...>;

  Cases(std::initializer_list<Case> cases) : cases_(cases) {}

  // Up to the first that fails, whose name it tells.
  template <class Check>
  void check(const Check& check) const {
    for (const Case& each : cases_) {
      std::apply(
          [&](const char* name, const Values&... values) {
            if constexpr (std::is_invocable_v<const Check&, const char*, const Values&...>) {
              check(name, values...);
            } else {
              check(values...);
            }
          },
          each);
      if (!QTest::currentTestFailed()) continue;
      return qWarning("In the case: %s", std::get<0>(each));
    }
  }

 private:
  std::vector<Case> cases_;
};

}  // namespace tarnloft
