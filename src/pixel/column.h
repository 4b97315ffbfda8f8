#pragma once

#include <array>
#include <type_traits>

#include "core/cpu.h"
#include "pixel/format.h"
#include "pixel/mode.h"

// Kernels are compiled once for each column, that is, for each instruction set; tables of them are
// made from the lists of rules and formats.

namespace brisal {

template <class Kernel, class... Args>
void RunPlain(Args... args) {
  Kernel::template Run<16>(args...);
}

#if BRISAL_HAS_AVX2
template <class Kernel, class... Args>
[[gnu::target(BRISAL_AVX2), gnu::flatten]] void RunWide(Args... args) {
  Kernel::template Run<32>(args...);
}
#endif

#if BRISAL_HAS_AVX512
template <class Kernel, class... Args>
[[gnu::target(BRISAL_AVX512), gnu::flatten]] void RunWidest(Args... args) {
  Kernel::template Run<64>(args...);
}
#endif

// What kernels derive from that vectors of 64 bytes pay for. The others run as wide ones at the most.
struct UpTo64Bytes {};
struct UpTo32Bytes {};

template <class... Args>
struct Kernels {
  using Function = void (*)(Args...);

  template <class Kernel>
  static constexpr Kernels Of() {
#if BRISAL_HAS_AVX512
    if constexpr (std::is_base_of_v<UpTo64Bytes, Kernel>) {
      return {{&RunPlain<Kernel, Args...>, &RunWide<Kernel, Args...>, &RunWidest<Kernel, Args...>}};
    }
#endif
#if BRISAL_HAS_AVX2
    return {{&RunPlain<Kernel, Args...>, &RunWide<Kernel, Args...>, &RunWide<Kernel, Args...>}};
#else
    return PlainOf<Kernel>();
#endif
  }

  // For kernels that wider vectors do nothing for.
  template <class Kernel>
  static constexpr Kernels PlainOf() {
    return {{&RunPlain<Kernel, Args...>, &RunPlain<Kernel, Args...>, &RunPlain<Kernel, Args...>}};
  }

  constexpr Function For(Isa isa) const { return columns[static_cast<size_t>(isa)]; }

  Function columns[4];  // a power of two: small jobs feel the multiplication by three
};

// Cells that are the same operation share one kernel. Formats 4 and 5 always do.
template <class F, template <class> class R>
struct FoldAlpha {
  using type = std::conditional_t<std::is_same_v<F, Argb32>, Xrgb32, F>;
};

// Where colours come packed, the 16-bit formats do too, for rules that do not look at channels.
template <class F, template <class> class R>
struct FoldPacked {
  using type =
      std::conditional_t<kIs16<F> && R<F>::kWholePixels, Rgb565, typename FoldAlpha<F, R>::type>;
};

template <template <class, template <class> class> class Fold, class... Args>
struct KernelTable {
  template <template <class, class> class K, template <class> class R, class F>
  using Cell = K<typename Fold<F, R>::type, R<typename Fold<F, R>::type>>;

  template <template <class, class> class K, template <class> class R, class... F>
  static constexpr std::array<Kernels<Args...>, sizeof...(F)> Row(TypeList<F...>) {
    return {Kernels<Args...>::template Of<Cell<K, R, F>>()...};
  }

  // rows[rule][format code - 1], where K<Format, Rule> is a kernel.
  template <template <class, class> class K, template <class> class... R>
  static constexpr auto Of(RuleList<R...>) {
    return std::array{Row<K, R>(Formats{})...};
  }
};

}  // namespace brisal
