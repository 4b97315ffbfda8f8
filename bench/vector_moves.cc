#include "bench/vector_moves.h"

#if defined(__x86_64__)
#include <immintrin.h>

#include <algorithm>
#include <cstring>

namespace brisal::bench {
namespace {

template <class T>
T Get(const uint8_t *p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  return value;
}

template <class T>
void Put(uint8_t *p, T value) {
  std::memcpy(p, &value, sizeof value);
}

// A vector of bytes, and its unaligned loads.
template <int kBytes>
struct Wide {
  typedef uint8_t V __attribute__((vector_size(kBytes)));

  [[gnu::always_inline]] static inline V Load(const uint8_t *p) {
    V v;
    std::memcpy(&v, p, sizeof v);
    return v;
  }
};

// Keep a compiler from leaving out what nobody looks at.
template <class V>
[[gnu::always_inline]] inline void UseVector(const V &v) {
  asm volatile("" : : "x"(v));
}

template <class Word>
void UseWord(Word word) {
  asm volatile("" : : "r"(word));
}

// The ways of moving take a run up to 31 bytes by words, which may overlap, and a longer one by vectors.
struct Reading {
  static void Short(const uint8_t *p, int64_t n) {
    if (n >= 16) {
      UseVector(Get<__m128i>(p) ^ Get<__m128i>(p + n - 16));
    } else if (n >= 8) {
      UseWord(Get<uint64_t>(p) ^ Get<uint64_t>(p + n - 8));
    } else if (n >= 4) {
      UseWord(Get<uint32_t>(p) ^ Get<uint32_t>(p + n - 4));
    } else {
      UseWord(p[0] ^ p[n / 2] ^ p[n - 1]);
    }
  }

  template <int kBytes>
  [[gnu::always_inline]] static inline void Long(const uint8_t *p, int64_t n) {
    using W = Wide<kBytes>;
    typename W::V sum = {};
    const uint8_t *const last = p + n - kBytes;
    for (; p < last; p += kBytes) sum ^= W::Load(p);
    UseVector(sum ^ W::Load(last));
  }
};

struct Storing {
  template <class V>
  [[gnu::always_inline]] static inline V Of(const V &read, const uint8_t *) {
    return read;
  }

  static void Short(uint8_t *p, int64_t n) {
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

  template <int kBytes>
  [[gnu::always_inline]] static inline void Long(uint8_t *p, int64_t n) {
    auto value = typename Wide<kBytes>::V{} + uint8_t{0x5A};
    asm("" : "+x"(value));  // or else GCC would call memset
    uint8_t *const last = p + n - kBytes;
    for (; p + 3 * kBytes <= last; p += 4 * kBytes) {
      for (int k = 0; k < 4; ++k) Put(p + k * kBytes, value);
    }
    for (; p < last; p += kBytes) Put(p, value);
    Put(last, value);
  }
};

struct Flipping {
  template <class V>
  [[gnu::always_inline]] static inline V Of(const V &read, const uint8_t *to) {
    return read ^ Wide<sizeof(V)>::Load(to);
  }

  static void Short(uint8_t *p, int64_t n) {
    for (; n >= 8; n -= 8, p += 8) Flip<uint64_t>(p);
    if (n & 4) Flip<uint32_t>(p);
    p += n & 4;
    if (n & 2) Flip<uint16_t>(p);
    p += n & 2;
    if (n & 1) Flip<uint8_t>(p);
  }

  // The last bytes are read before the others are written: no load has to wait for a store.
  template <int kBytes>
  [[gnu::always_inline]] static inline void Long(uint8_t *p, int64_t n) {
    using W = Wide<kBytes>;
    uint8_t *const last = p + n - kBytes;
    const auto tail = ~W::Load(last);
    for (; p + 3 * kBytes <= last; p += 4 * kBytes) {
      for (int k = 0; k < 4; ++k) Put(p + k * kBytes, ~W::Load(p + k * kBytes));
    }
    for (; p < last; p += kBytes) Put(p, ~W::Load(p));
    Put(last, tail);
  }

 private:
  template <class T>
  static void Flip(uint8_t *p) {
    Put(p, static_cast<T>(~Get<T>(p)));
  }
};

struct Streaming {
  static void Short(uint8_t *p, int64_t n) { Storing::Short(p, n); }

  template <int kBytes>
  [[gnu::target("avx2")]] static inline void Long(uint8_t *p, int64_t n) {
    const __m256i value = _mm256_set1_epi8(0x5A);
    uint8_t *const end = p + n;
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), value);
    p = reinterpret_cast<uint8_t *>((reinterpret_cast<uintptr_t>(p) + 31) & ~uintptr_t{31});
    for (; p + 32 <= end; p += 32) _mm256_stream_si256(reinterpret_cast<__m256i *>(p), value);
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(end - 32), value);
  }
};

// In vectors of kBytes, or narrower ones where the run is shorter.
template <class Way, int kBytes, class Byte>
[[gnu::always_inline]] inline void MoveRun(Byte *p, int64_t n) {
  if (n < 32) {
    Way::Short(p, n);
  } else if (n < kBytes) {
    Way::template Long<32>(p, n);
  } else {
    Way::template Long<kBytes>(p, n);
  }
}

// Reads and writes in turn where both runs have a vector's length and no less is written than read; where
// more is, the end is read again. The way says what is written for what was read. The last bytes are read
// before any are written.
template <class Way, int kBytes>
[[gnu::always_inline]] inline void PairRun(const uint8_t *from, int64_t fromSize, uint8_t *to,
                                           int64_t size) {
  using W = Wide<kBytes>;
  const int64_t last = size - kBytes;
  const int64_t fromLast = fromSize - kBytes;
  if (fromLast >= 0 && fromLast <= last) {
    const auto tail = Way::Of(W::Load(from + fromLast), to + last);
    for (int64_t k = 0; k < last; k += kBytes) {
      Put(to + k, Way::Of(W::Load(from + std::min(k, fromLast)), to + k));
    }
    Put(to + last, tail);
    return;
  }
  if constexpr (kBytes > 32) {
    if (fromLast < 0) return PairRun<Way, 32>(from, fromSize, to, size);
  }
  if (fromSize > 0) MoveRun<Reading, kBytes>(from, fromSize);
  MoveRun<Way, kBytes>(to, size);
}

// Always inlined, so that they take on the instruction set of their callers.
template <class Way, int kBytes>
[[gnu::always_inline]] inline void MoveRuns(const Moves &moves, const uint8_t *, uint8_t *spot) {
  for (const Run &run : moves.writes) MoveRun<Way, kBytes>(spot + run.offset, run.size);
}

template <class Way, int kBytes>
[[gnu::always_inline]] inline void PairRuns(const Moves &moves, const uint8_t *picture,
                                            uint8_t *spot) {
  const Run *from = moves.reads.data();
  for (const Run &to : moves.writes) {
    PairRun<Way, kBytes>(picture + from->offset, from->size, spot + to.offset, to.size);
    ++from;
  }
}

#define BRISAL_MOVER(name, isa, move)                                                      \
  [[gnu::target(isa), gnu::flatten]] void name(const Moves &moves, const uint8_t *picture, \
                                               uint8_t *spot) {                            \
    move(moves, picture, spot);                                                            \
  }
BRISAL_MOVER(StoreByAvx2, "avx2", (MoveRuns<Storing, 32>))
BRISAL_MOVER(CopyByAvx2, "avx2", (PairRuns<Storing, 32>))
BRISAL_MOVER(FlipByAvx2, "avx2", (MoveRuns<Flipping, 32>))
BRISAL_MOVER(MergeByAvx2, "avx2", (PairRuns<Flipping, 32>))
BRISAL_MOVER(StoreByAvx512, "avx512bw", (MoveRuns<Storing, 64>))
BRISAL_MOVER(CopyByAvx512, "avx512bw", (PairRuns<Storing, 64>))
BRISAL_MOVER(FlipByAvx512, "avx512bw", (MoveRuns<Flipping, 64>))
BRISAL_MOVER(MergeByAvx512, "avx512bw", (PairRuns<Flipping, 64>))
#undef BRISAL_MOVER

constexpr VectorMovers kByAvx2 = {{"wide stores", StoreByAvx2},
                                  {"wide copy", CopyByAvx2},
                                  {"wide xor", FlipByAvx2},
                                  {"wide merge", MergeByAvx2}};
constexpr VectorMovers kByAvx512 = {{"widest stores", StoreByAvx512},
                                    {"widest copy", CopyByAvx512},
                                    {"widest xor", FlipByAvx512},
                                    {"widest merge", MergeByAvx512}};

}  // namespace

std::vector<VectorMovers> VectorMoversHere() {
  std::vector<VectorMovers> sets;
  if (__builtin_cpu_supports("avx2")) sets.push_back(kByAvx2);
  if (__builtin_cpu_supports("avx512bw")) sets.push_back(kByAvx512);
  return sets;
}

void WithRepStos(const Moves &moves, const uint8_t *, uint8_t *spot) {
  for (const Run &run : moves.writes) {
    uint8_t *p = spot + run.offset;
    int64_t n = run.size;
    asm volatile("rep stosb" : "+D"(p), "+c"(n) : "a"(0x5A) : "memory");
  }
}

[[gnu::target("avx2"), gnu::flatten]] void WithStreaming(const Moves &moves, const uint8_t *picture,
                                                         uint8_t *spot) {
  for (size_t i = 0; i < moves.writes.size(); ++i) {
    if (i < moves.reads.size()) {
      MoveRun<Reading, 32>(picture + moves.reads[i].offset, moves.reads[i].size);
    }
    MoveRun<Streaming, 32>(spot + moves.writes[i].offset, moves.writes[i].size);
  }
  _mm_sfence();
}

}  // namespace brisal::bench

#else

namespace brisal::bench {

std::vector<VectorMovers> VectorMoversHere() { return {}; }
void WithRepStos(const Moves &, const uint8_t *, uint8_t *) {}
void WithStreaming(const Moves &, const uint8_t *, uint8_t *) {}

}  // namespace brisal::bench

#endif
