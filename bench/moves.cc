#include "bench/moves.h"

#include <algorithm>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace brisal::bench {
namespace {

// Write(pointer, size) over all runs of the job's i-th repetition. Always inlined, so that it takes
// on the instruction set of its caller.
template <class Write>
[[gnu::always_inline]] inline void ForRuns(const std::vector<Run> &runs, uint8_t *base,
                                           Write write) {
  for (const Run &run : runs) write(base + run.offset, run.size);
}

void WithMemset(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t n) { std::memset(p, 0x5A, n); });
}

#if defined(__x86_64__)

void WithRepStos(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t n) {
    asm volatile("rep stosb" : "+D"(p), "+c"(n) : "a"(0x5A) : "memory");
  });
}

template <class T>
void Put(uint8_t *p, T value) {
  std::memcpy(p, &value, sizeof value);
}

// Up to 31 bytes, by overlapping words.
void StoreShort(uint8_t *p, int64_t n) {
  constexpr uint64_t kWord = 0x5A5A5A5A5A5A5A5A;
  if (n >= 16) {
    const __m128i value = _mm_set1_epi8(0x5A);
    Put(p, value);
    Put(p + n - 16, value);
  } else if (n >= 8) {
    Put(p, kWord);
    Put(p + n - 8, kWord);
  } else if (n >= 4) {
    Put(p, static_cast<uint32_t>(kWord));
    Put(p + n - 4, static_cast<uint32_t>(kWord));
  } else if (n >= 2) {
    Put(p, static_cast<uint16_t>(kWord));
    Put(p + n - 2, static_cast<uint16_t>(kWord));
  } else {
    *p = 0x5A;
  }
}

// A vector of bytes, and its unaligned loads and stores.
template <int kBytes>
struct Wide {
  typedef uint8_t V __attribute__((vector_size(kBytes)));

  [[gnu::always_inline]] static inline V Load(const uint8_t *p) {
    V v;
    std::memcpy(&v, p, sizeof v);
    return v;
  }
};

template <int kBytes>
[[gnu::always_inline]] inline void StoreWide(uint8_t *p, int64_t n) {
  const auto value = typename Wide<kBytes>::V{} + uint8_t{0x5A};
  uint8_t *const last = p + n - kBytes;
  for (; p + 3 * kBytes <= last; p += 4 * kBytes) {
    for (int k = 0; k < 4; ++k) Put(p + k * kBytes, value);
  }
  for (; p < last; p += kBytes) Put(p, value);
  Put(last, value);
}

// Writes each run the given way, in vectors of kBytes, or narrower where it is shorter.
template <int kBytes, class Way>
[[gnu::always_inline]] inline void WriteRuns(const std::vector<Run> &runs, uint8_t *base, Way way) {
  for (const Run &run : runs) {
    uint8_t *const p = base + run.offset;
    if (run.size >= kBytes) {
      way.template Wide<kBytes>(p, run.size);
    } else if (run.size >= 32) {
      way.template Wide<32>(p, run.size);
    } else {
      way.Short(p, run.size);
    }
  }
}

struct Storing {
  template <int kBytes>
  [[gnu::always_inline]] static inline void Wide(uint8_t *p, int64_t n) {
    StoreWide<kBytes>(p, n);
  }
  static void Short(uint8_t *p, int64_t n) { StoreShort(p, n); }
};

[[gnu::target("avx2"), gnu::flatten]] void WithWideStores(const std::vector<Run> &runs,
                                                          uint8_t *base) {
  WriteRuns<32>(runs, base, Storing{});
}

[[gnu::target("avx512bw"), gnu::flatten]] void WithWidestStores(const std::vector<Run> &runs,
                                                                uint8_t *base) {
  WriteRuns<64>(runs, base, Storing{});
}

[[gnu::target("avx2")]] void StoreStreaming(uint8_t *p, int64_t n) {
  const __m256i value = _mm256_set1_epi8(0x5A);
  uint8_t *const end = p + n;
  _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), value);
  p = reinterpret_cast<uint8_t *>((reinterpret_cast<uintptr_t>(p) + 31) & ~uintptr_t{31});
  for (; p + 32 <= end; p += 32) _mm256_stream_si256(reinterpret_cast<__m256i *>(p), value);
  _mm256_storeu_si256(reinterpret_cast<__m256i *>(end - 32), value);
}

[[gnu::target("avx2"), gnu::flatten]] void WithStreaming(const std::vector<Run> &runs,
                                                         uint8_t *base) {
  for (const Run &run : runs) StoreStreaming(base + run.offset, run.size);
  _mm_sfence();
}

template <class T>
void Flip(uint8_t *p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  value = static_cast<T>(~value);
  std::memcpy(p, &value, sizeof value);
}

void FlipShort(uint8_t *p, int64_t n) {
  for (; n >= 8; n -= 8, p += 8) Flip<uint64_t>(p);
  if (n & 4) Flip<uint32_t>(p);
  p += n & 4;
  if (n & 2) Flip<uint16_t>(p);
  p += n & 2;
  if (n & 1) Flip<uint8_t>(p);
}

// The last bytes are read before the others are written: no load has to wait for a store.
template <int kBytes>
[[gnu::always_inline]] inline void FlipWide(uint8_t *p, int64_t n) {
  using W = Wide<kBytes>;
  uint8_t *const last = p + n - kBytes;
  const auto tail = ~W::Load(last);
  for (; p + 3 * kBytes <= last; p += 4 * kBytes) {
    for (int k = 0; k < 4; ++k) Put(p + k * kBytes, ~W::Load(p + k * kBytes));
  }
  for (; p < last; p += kBytes) Put(p, ~W::Load(p));
  Put(last, tail);
}

struct Flipping {
  template <int kBytes>
  [[gnu::always_inline]] static inline void Wide(uint8_t *p, int64_t n) {
    FlipWide<kBytes>(p, n);
  }
  static void Short(uint8_t *p, int64_t n) { FlipShort(p, n); }
};

[[gnu::target("avx2"), gnu::flatten]] void WithFlips(const std::vector<Run> &runs, uint8_t *base) {
  WriteRuns<32>(runs, base, Flipping{});
}

[[gnu::target("avx512bw"), gnu::flatten]] void WithWidestFlips(const std::vector<Run> &runs,
                                                               uint8_t *base) {
  WriteRuns<64>(runs, base, Flipping{});
}

template <int kBytes>
[[gnu::always_inline]] inline void ReadWide(const uint8_t *from, int64_t n) {
  using W = Wide<kBytes>;
  typename W::V sum = {};
  const uint8_t *const last = from + n - kBytes;
  for (; from < last; from += kBytes) sum ^= W::Load(from);
  sum ^= W::Load(last);
  asm volatile("" : : "v"(sum));
}

template <int kBytes>
[[gnu::always_inline]] inline void FlipBy(const uint8_t *from, uint8_t *to, int64_t n) {
  using W = Wide<kBytes>;
  const auto flipped = [=](int64_t k) __attribute__((always_inline)) {
    return W::Load(from + k) ^ W::Load(to + k);
  };
  const auto tail = flipped(n - kBytes);
  for (int64_t k = 0; k < n - kBytes; k += kBytes) Put(to + k, flipped(k));
  Put(to + n - kBytes, tail);
}

template <int kBytes>
[[gnu::always_inline]] inline void CopyWide(const uint8_t *from, int64_t fromSize, uint8_t *to,
                                            int64_t toSize) {
  ReadWide<kBytes>(from, fromSize);
  StoreWide<kBytes>(to, toSize);
}

template <int kBytes>
[[gnu::always_inline]] inline void MergeWide(const uint8_t *from, int64_t fromSize, uint8_t *to,
                                             int64_t toSize) {
  if (fromSize == toSize) return FlipBy<kBytes>(from, to, toSize);
  ReadWide<kBytes>(from, fromSize);
  FlipWide<kBytes>(to, toSize);
}

#define BRISAL_ROW_MOVER(name, isa, moves)                                                         \
  [[gnu::target(isa), gnu::flatten]] void name(const uint8_t *from, int64_t fromSize, uint8_t *to, \
                                               int64_t toSize) {                                   \
    moves(from, fromSize, to, toSize);                                                             \
  }
BRISAL_ROW_MOVER(CopyByAvx2, "avx2", CopyWide<32>)
BRISAL_ROW_MOVER(MergeByAvx2, "avx2", MergeWide<32>)
BRISAL_ROW_MOVER(CopyByAvx512, "avx512bw", CopyWide<64>)
BRISAL_ROW_MOVER(MergeByAvx512, "avx512bw", MergeWide<64>)
#undef BRISAL_ROW_MOVER

#endif

void CopyBytes(const uint8_t *from, int64_t fromSize, uint8_t *to, int64_t toSize) {
  if (fromSize == toSize) {
    std::memcpy(to, from, toSize);
    return;
  }
  for (int64_t k = 0; k < toSize; ++k) to[k] = from[k % fromSize];
}

void MergeBytes(const uint8_t *from, int64_t fromSize, uint8_t *to, int64_t toSize) {
  if (fromSize == toSize) {
    for (int64_t k = 0; k < toSize; ++k) to[k] ^= from[k];
    return;
  }
  for (int64_t k = 0; k < toSize; ++k) to[k] ^= from[k % fromSize];
}

// Plain words, for processors without wide ones and for shapes whose runs are single pixels.
void WithBytes(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t n) {
    for (int64_t k = 0; k < n; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  });
}

template <int kSize>
void StorePixels(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t) { std::memset(p, 0x5A, kSize); });
}

template <int kSize>
void FlipPixels(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t) {
    for (int k = 0; k < kSize; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  });
}

NamedWriter PixelWriter(bool isSolid, int bytesPerPixel) {
  static constexpr Writer kStores[] = {StorePixels<2>, StorePixels<3>, StorePixels<4>};
  static constexpr Writer kFlips[] = {FlipPixels<2>, FlipPixels<3>, FlipPixels<4>};
  return {"pixels", (isSolid ? kStores : kFlips)[bytesPerPixel - 2]};
}

}  // namespace

std::vector<NamedWriter> WritersOf(bool isSolid, const std::vector<Run> &runs, int bytesPerPixel) {
  const auto [shortest, longest] = std::minmax_element(
      runs.begin(), runs.end(), [](const Run &a, const Run &b) { return a.size < b.size; });
  if (longest->size == bytesPerPixel) return {PixelWriter(isSolid, bytesPerPixel)};
  std::vector<NamedWriter> writers;
  writers.push_back(isSolid ? NamedWriter{"memset", WithMemset} : NamedWriter{"bytes", WithBytes});
#if defined(__x86_64__)
  if (!__builtin_cpu_supports("avx2")) return writers;
  const bool hasAvx512 = __builtin_cpu_supports("avx512bw") != 0;
  if (!isSolid) {
    writers = {{"wide xor", WithFlips}};
    if (hasAvx512) writers.push_back({"widest xor", WithWidestFlips});
    return writers;
  }
  writers.push_back({"wide stores", WithWideStores});
  if (hasAvx512) writers.push_back({"widest stores", WithWidestStores});
  if (longest->size >= 256) writers.push_back({"rep stos", WithRepStos});
  const bool isLarge = longest->size * static_cast<int64_t>(runs.size()) >= 256 * 1024;
  if (isLarge && shortest->size >= 256) writers.push_back({"streaming", WithStreaming});
#endif
  return writers;
}

std::vector<NamedMover> MoversOf(bool copies, int64_t fromSize, int64_t toSize) {
  std::vector<NamedMover> movers = {copies ? NamedMover{"copy", CopyBytes}
                                           : NamedMover{"merge", MergeBytes}};
#if defined(__x86_64__)
  const int64_t shorter = std::min(fromSize, toSize);
  if (shorter >= 32 && __builtin_cpu_supports("avx2")) {
    movers.push_back(copies ? NamedMover{"wide copy", CopyByAvx2}
                            : NamedMover{"wide merge", MergeByAvx2});
  }
  if (shorter >= 64 && __builtin_cpu_supports("avx512bw")) {
    movers.push_back(copies ? NamedMover{"widest copy", CopyByAvx512}
                            : NamedMover{"widest merge", MergeByAvx512});
  }
#endif
  return movers;
}

}  // namespace brisal::bench
