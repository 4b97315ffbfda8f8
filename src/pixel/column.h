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

template <class Kernel, class... Args>
[[gnu::target(BRISAL_AVX512), gnu::flatten]] void RunGathering(Args... args) {
  Kernel::template Run<64, true>(args...);
}
#endif

// What kernels derive from that vectors of 64 bytes pay for. The others run as wide ones at the most.
struct UpTo64Bytes {};
struct UpTo32Bytes {};
// What those derive from that fast gathers pay for: their Run takes whether gathers are fast.
struct GathersTexels : UpTo64Bytes {};
template <bool kPays>
using GathersTexelsIf = std::conditional_t<kPays, GathersTexels, UpTo64Bytes>;

template <class... Args>
struct Kernels {
  using Function = void (*)(Args...);

  template <class Kernel>
  static constexpr Kernels Of() {
    return {{&RunPlain<Kernel, Args...>, Wide<Kernel>(), Widest<Kernel>(), Gathering<Kernel>()}};
  }

  // For kernels that wider vectors do nothing for.
  template <class Kernel>
  static constexpr Kernels PlainOf() {
    constexpr Function kPlain = &RunPlain<Kernel, Args...>;
    return {{kPlain, kPlain, kPlain, kPlain}};
  }

  constexpr Function For(Isa isa) const { return columns[static_cast<size_t>(isa)]; }

  Function columns[4];

 private:
  template <class Kernel>
  static constexpr Function Wide() {
#if BRISAL_HAS_AVX2
    return &RunWide<Kernel, Args...>;
#else
    return &RunPlain<Kernel, Args...>;
#endif
  }

  template <class Kernel>
  static constexpr Function Widest() {
#if BRISAL_HAS_AVX512
    if constexpr (std::is_base_of_v<UpTo64Bytes, Kernel>) return &RunWidest<Kernel, Args...>;
#endif
    return Wide<Kernel>();
  }

  template <class Kernel>
  static constexpr Function Gathering() {
#if BRISAL_HAS_AVX512
    if constexpr (std::is_base_of_v<GathersTexels, Kernel>) return &RunGathering<Kernel, Args...>;
#endif
    return Widest<Kernel>();
  }
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
