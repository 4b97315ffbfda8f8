#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/cpu.h"
#include "pixel/lanes.h"

#if BRISAL_HAS_AVX2
#include <immintrin.h>
#endif

// What the generic vectors have no name for: the words that the lanes of `from` number, the high halves
// of products of 16-bit lanes, the sums of the signed products of neighbouring ones, sums and differences
// that saturate, and words as floating-point numbers. By reference, since vectors of a set that the caller
// may lack have no agreed way of being passed; inlined, that makes no difference.

namespace brisal {

template <class V>
BRISAL_INLINE void Permute(const V &words, const V &from, V &permuted) {
  for (size_t i = 0; i < sizeof(V) / 4; ++i) permuted[i] = words[from[i] % (sizeof(V) / 4)];
}

// The bytes of a table that `from` numbers.
template <class V>
BRISAL_INLINE void PermuteBytes(const V &table, const V &from, V &permuted) {
  for (size_t i = 0; i < sizeof(V); ++i) permuted[i] = table[from[i] % sizeof(V)];
}

template <class V>
BRISAL_INLINE void MultiplyHigh(const V &a, const V &b, V &high) {
  using Lane = std::remove_cvref_t<decltype(a[0])>;
  using Product = std::conditional_t<std::is_signed_v<Lane>, int32_t, uint32_t>;
  for (size_t i = 0; i < sizeof(V) / 2; ++i) {
    high[i] = static_cast<Lane>((Product{a[i]} * Product{b[i]}) >> 16);
  }
}

template <class V, class W>
BRISAL_INLINE void MultiplyAdd(const V &a, const V &b, W &sums) {
  const auto high = [](const V &v) { return As<int32_t>(v) >> 16; };
  const auto low = [](const V &v) { return (As<int32_t>(v) << 16) >> 16; };
  sums = As<uint32_t>(low(a) * low(b) + high(a) * high(b));
}

// In 16-bit lanes, the sum of the two bytes of a, without sign, times those of b, with theirs.
template <class V>
BRISAL_INLINE void MultiplyAddBytes(const V &a, const V &b, V &sums) {
  const auto signs = As<int16_t>(b);
  sums = (a & 0xFF) * As<uint16_t>((signs << 8) >> 8) + (a >> 8) * As<uint16_t>(signs >> 8);
}

// Sums of unsigned lanes that stop at the largest, and differences that stop at 0.
template <class V>
BRISAL_INLINE void AddSaturated(const V &a, const V &b, V &sum) {
  sum = Min(a, ~b) + b;
}

template <class V>
BRISAL_INLINE void SubtractSaturated(const V &a, const V &b, V &difference) {
  difference = Max(a, b) - b;
}

template <class V, class W>
BRISAL_INLINE void ToDoubles(const V &words, W &doubles) {
  doubles = __builtin_convertvector(words, W);
}

#if BRISAL_HAS_AVX2

// GCC would convert the two words one by one.
[[gnu::target("sse2")]] inline void ToDoubles(const Vector<int32_t, 8> &words,
                                              Vector<double, 16> &doubles) {
  doubles = _mm_cvtepi32_pd(_mm_set_epi64x(0, As<int64_t>(words)[0]));
}

// One of them for vectors of a size, and all that every set has.
#define BRISAL_INSTRUCTION(isa, Bytes, Register, Name, Lane, ResultLane, instruction) \
  [[gnu::target(isa)]] inline void Name(const Vector<Lane, Bytes> &a,                 \
                                        const Vector<Lane, Bytes> &b,                 \
                                        Vector<ResultLane, Bytes> &result) {          \
    result = (Vector<ResultLane, Bytes>)instruction((Register)a, (Register)b);        \
  }
#define BRISAL_INSTRUCTIONS(isa, Bytes, Register, mm)                                           \
  BRISAL_INSTRUCTION(isa, Bytes, Register, MultiplyHigh, uint16_t, uint16_t, mm##_mulhi_epu16)  \
  BRISAL_INSTRUCTION(isa, Bytes, Register, MultiplyHigh, int16_t, int16_t, mm##_mulhi_epi16)    \
  BRISAL_INSTRUCTION(isa, Bytes, Register, MultiplyAdd, uint16_t, uint32_t, mm##_madd_epi16)    \
  BRISAL_INSTRUCTION(isa, Bytes, Register, AddSaturated, uint8_t, uint8_t, mm##_adds_epu8)      \
  BRISAL_INSTRUCTION(isa, Bytes, Register, AddSaturated, uint16_t, uint16_t, mm##_adds_epu16)   \
  BRISAL_INSTRUCTION(isa, Bytes, Register, SubtractSaturated, uint8_t, uint8_t, mm##_subs_epu8) \
  BRISAL_INSTRUCTION(isa, Bytes, Register, SubtractSaturated, uint16_t, uint16_t, mm##_subs_epu16)

BRISAL_INSTRUCTIONS("sse2", 16, __m128i, _mm)
BRISAL_INSTRUCTIONS(BRISAL_AVX2, 32, __m256i, _mm256)
#if BRISAL_HAS_AVX512
BRISAL_INSTRUCTIONS(BRISAL_AVX512, 64, __m512i, _mm512)
#endif

BRISAL_INSTRUCTION(BRISAL_AVX2, 32, __m256i, MultiplyAddBytes, uint16_t, uint16_t,
                   _mm256_maddubs_epi16)
#if BRISAL_HAS_AVX512
BRISAL_INSTRUCTION(BRISAL_AVX512, 64, __m512i, MultiplyAddBytes, uint16_t, uint16_t,
                   _mm512_maddubs_epi16)
#endif

#undef BRISAL_INSTRUCTIONS
#undef BRISAL_INSTRUCTION

[[gnu::target(BRISAL_AVX2)]] inline void Permute(const Vector<uint32_t, 32> &words,
                                                 const Vector<uint32_t, 32> &from,
                                                 Vector<uint32_t, 32> &permuted) {
  permuted = (Vector<uint32_t, 32>)_mm256_permutevar8x32_epi32((__m256i)words, (__m256i)from);
}

#if BRISAL_HAS_AVX512
// The compilers' own ways of joining vectors take two instructions more.
template <class Half, class V>
[[gnu::target(BRISAL_AVX512)]] inline void JoinHalves(const Half &lower, const Half &upper,
                                                      V &v) requires(sizeof(V) == 32) {
  v = (V)_mm256_inserti128_si256(_mm256_castsi128_si256((__m128i)lower), (__m128i)upper, 1);
}

template <class Half, class V>
[[gnu::target(BRISAL_AVX512)]] inline void JoinHalves(const Half &lower, const Half &upper,
                                                      V &v) requires(sizeof(V) == 64) {
  v = (V)_mm512_inserti64x4(_mm512_castsi256_si512((__m256i)lower), (__m256i)upper, 1);
}

// The bits that the mask has, next to each other.
[[gnu::target(BRISAL_AVX512)]] inline uint64_t ExtractBits(uint64_t bits, uint64_t mask) {
  return _pext_u64(bits, mask);
}

[[gnu::target(BRISAL_AVX512)]] inline void PermuteBytes(const Vector<uint8_t, 64> &table,
                                                        const Vector<uint8_t, 64> &from,
                                                        Vector<uint8_t, 64> &permuted) {
  permuted = (Vector<uint8_t, 64>)_mm512_permutexvar_epi8((__m512i)from, (__m512i)table);
}

// The lanes of a table that `from` numbers, which has as many or half of them.
template <class Table, class V>
[[gnu::target(BRISAL_AVX512)]] inline void PermuteLanes(const Table &table, const V &from,
                                                        V &permuted) {
  __m512i numbers;
  if constexpr (sizeof(V) == 64) {
    numbers = (__m512i)from;
  } else {
    numbers = _mm512_castsi256_si512((__m256i)from);
  }
  __m512i lanes;
  if constexpr (sizeof(from[0]) == 2) {
    lanes = _mm512_permutexvar_epi16(numbers, (__m512i)table);
  } else {
    lanes = _mm512_permutexvar_epi32(numbers, (__m512i)table);
  }
  std::memcpy(&permuted, &lanes, sizeof permuted);
}

// The words at distances from p, in bytes. Nothing is read, and the lane is 0, where the mask has no bit.
[[gnu::target(BRISAL_AVX512)]] inline void GatherWords(const uint8_t *p,
                                                       const Vector<uint32_t, 64> &distances,
                                                       uint16_t mask, Vector<uint32_t, 64> &words) {
  words = (Vector<uint32_t, 64>)_mm512_mask_i32gather_epi32(_mm512_setzero_si512(), mask,
                                                            (__m512i)distances, p, 1);
}

// To the right, by the low five bits of each lane.
[[gnu::target(BRISAL_AVX512)]] inline void RotateWords(const Vector<uint32_t, 64> &words,
                                                       const Vector<uint32_t, 64> &bits,
                                                       Vector<uint32_t, 64> &rotated) {
  rotated = (Vector<uint32_t, 64>)_mm512_rorv_epi32((__m512i)words, (__m512i)bits);
}

[[gnu::target(BRISAL_AVX512)]] inline uint16_t UnequalWords(const Vector<uint32_t, 64> &a,
                                                            const Vector<uint32_t, 64> &b) {
  return _mm512_cmpneq_epi32_mask((__m512i)a, (__m512i)b);
}

// The words, or their low halves, where the mask has a bit.
[[gnu::target(BRISAL_AVX512)]] inline void StoreWords(uint8_t *p, uint16_t mask,
                                                      const Vector<uint32_t, 64> &words) {
  _mm512_mask_storeu_epi32(p, mask, (__m512i)words);
}

[[gnu::target(BRISAL_AVX512)]] inline void StoreHalves(uint8_t *p, uint16_t mask,
                                                       const Vector<uint32_t, 64> &words) {
  _mm256_mask_storeu_epi16(p, mask, _mm512_cvtepi32_epi16((__m512i)words));
}

// The low three bytes of words, the highest first, where the mask has a bit.
[[gnu::target(BRISAL_AVX512)]] inline void StoreTriples(uint8_t *p, uint16_t mask,
                                                        const Vector<uint32_t, 64> &words) {
  constexpr uint64_t kFirstOfThree = 0x249249249249;
  Vector<uint8_t, 64> from = {};
  for (int i = 0; i < 48; ++i) from[i] = static_cast<uint8_t>(i / 3 * 4 + 2 - i % 3);
  _mm512_mask_storeu_epi8(p, _pdep_u64(mask, kFirstOfThree) * 7,
                          _mm512_permutexvar_epi8((__m512i)from, (__m512i)words));
}

[[gnu::target(BRISAL_AVX512)]] inline uint64_t FirstBits(ptrdiff_t n) {
  return _bzhi_u64(~uint64_t{0}, static_cast<uint32_t>(n));
}

// The first bytes of a vector, one at the least: nothing behind them is read, or written.
[[gnu::target(BRISAL_AVX512)]] inline void LoadFirst(const uint8_t *p, ptrdiff_t bytes,
                                                     Vector<uint8_t, 64> &v) {
  v = (Vector<uint8_t, 64>)_mm512_maskz_loadu_epi8(FirstBits(bytes), p);
}

[[gnu::target(BRISAL_AVX512)]] inline void LoadFirst(const uint8_t *p, ptrdiff_t bytes,
                                                     Vector<uint8_t, 32> &v) {
  v = (Vector<uint8_t, 32>)_mm256_maskz_loadu_epi8(~uint32_t{0} >> (32 - bytes), p);
}

[[gnu::target(BRISAL_AVX512)]] inline void StoreFirst(uint8_t *p, ptrdiff_t bytes,
                                                      const Vector<uint8_t, 32> &v) {
  _mm256_mask_storeu_epi8(p, ~uint32_t{0} >> (32 - bytes), (__m256i)v);
}

[[gnu::target(BRISAL_AVX512)]] inline void StoreFirst(uint8_t *p, ptrdiff_t bytes,
                                                      const Vector<uint8_t, 64> &v) {
  _mm512_mask_storeu_epi8(p, FirstBits(bytes), (__m512i)v);
}

// Stores the first 3 to 63 bytes, all but the triples of them that equal the key's.
[[gnu::target(BRISAL_AVX512)]] inline void StoreUnlessTriple(uint8_t *p, ptrdiff_t bytes,
                                                             const Vector<uint8_t, 64> &key,
                                                             const Vector<uint8_t, 64> &pixels) {
  const uint64_t inside = FirstBits(bytes);
  const uint64_t equal = _mm512_cmpeq_epi8_mask((__m512i)pixels, (__m512i)key);
  constexpr uint64_t kFirstOfThree = 0x1249249249249249;
  const uint64_t keys = (equal & equal >> 1 & equal >> 2 & kFirstOfThree) * 7;
  _mm512_mask_storeu_epi8(p, inside & ~keys, (__m512i)pixels);
}
#endif
#endif

}  // namespace brisal
