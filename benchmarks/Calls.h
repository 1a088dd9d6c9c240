// A row of the table of counted calls, which is Calls.cpp.
#ifndef ZRSTRING_BENCHMARKS_CALLS_H
#define ZRSTRING_BENCHMARKS_CALLS_H

#include <cstdint>
#include <type_traits>
#include <vector>

#include "Texts.h"

/// A function of some texts behind a pointer, whatever it returns: the call is neither inlined into
/// a loop nor dropped because its result is not used.
template <typename Texts>
class Call {
 public:
  Call() = default;

  template <typename Function>
  Call(Function function) {
    static const Function kFunction = function;
    call_ = [](Texts& texts) -> ZRLong {
      using Result = std::invoke_result_t<Function, Texts&>;
      if constexpr (std::is_void_v<Result>)
        return kFunction(texts), 0;
      else if constexpr (std::is_pointer_v<Result>)
        return static_cast<ZRLong>(reinterpret_cast<std::uintptr_t>(kFunction(texts)));
      else
        return kFunction(texts);
    };
  }

  explicit operator bool() const { return call_ != nullptr; }
  ZRLong operator()(Texts& texts) const { return call_(texts); }

 private:
  ZRLong (*call_)(Texts&) = nullptr;
};

/// What the strings under edit hold before a call.
enum class Before { kText, kDecomposed, kGreek, kSpaced };

/// A member, the ICU call that it maps to and, where there is one, the handle function over it.
/// Where the library resolves a length of -1, the ICU call is given the length.
struct Calls {
  const char* name;
  Call<IcuTexts> icu;
  Call<ZRTexts> member;
  const char* functionName = nullptr;
  Call<ZRTexts> function = {};
  Before before = Before::kText;
};

const std::vector<Calls>& AllCalls();

#endif
