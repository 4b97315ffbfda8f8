// How the lines of the table of calls are made from a function of the library and its reference.
#pragma once

#include <bit>
#include <type_traits>
#include <utility>

#include "support/calls.h"

namespace binding {

using reference::Reference;

template <class F>
uint32_t ResultOf(F call) {
  if constexpr (std::is_void_v<decltype(call())>) {
    call();
    return 0;
  } else if constexpr (std::is_same_v<decltype(call()), float>) {
    return ::BitsOf(call());
  } else {
    return static_cast<uint32_t>(call());
  }
}

// An argument as a function takes it.
template <class P>
P Pass(Scene &scene, int32_t value) {
  if constexpr (std::is_pointer_v<P>) {
    using Record = std::remove_const_t<std::remove_pointer_t<P>>;
    return static_cast<P>(scene.At<Record>(value));
  } else if constexpr (std::is_same_v<P, float>) {
    return std::bit_cast<float>(value);
  } else {
    return static_cast<P>(value);
  }
}

template <class F, class R, class... P, size_t... I>
uint32_t SpreadFunction(F f, R (*)(P...), Scene &s, const Args &a, std::index_sequence<I...>) {
  return ResultOf([&] { return f(Pass<P>(s, a[I])...); });
}

template <class F, class R, class... P, size_t... I>
uint32_t SpreadMember(F f, R (*)(P...), Scene &s, const Args &a, std::index_sequence<I...>) {
  return ResultOf([&] { return (s.reference.*f)(Pass<P>(s, a[I])...); });
}

template <class R, class... P>
uint32_t Spread(R (*f)(P...), Scene &s, const Args &a) {
  return SpreadFunction(f, f, s, a, std::index_sequence_for<P...>());
}

#if defined(_WIN32) && !defined(_WIN64)
// There the library's functions have a calling convention that the reference's have not.
template <class R, class... P>
uint32_t Spread(R(BRSL_CALL *f)(P...), Scene &s, const Args &a) {
  return SpreadFunction(f, static_cast<R (*)(P...)>(nullptr), s, a,
                        std::index_sequence_for<P...>());
}
#endif

template <class R, class... P>
uint32_t Spread(R (Reference::*f)(P...), Scene &s, const Args &a) {
  return SpreadMember(f, static_cast<R (*)(P...)>(nullptr), s, a, std::index_sequence_for<P...>());
}

template <class R, class... P>
uint32_t Spread(R (Reference::*f)(P...) const, Scene &s, const Args &a) {
  return SpreadMember(f, static_cast<R (*)(P...)>(nullptr), s, a, std::index_sequence_for<P...>());
}

template <auto kLibrary, auto kReference>
constexpr Function Drawing(const char *name, Family family, const char *kinds) {
  return {name, family, kinds, [](Scene &s, const Args &a) { return Spread(kLibrary, s, a); },
          [](Scene &s, const Args &a) { return Spread(kReference, s, a); }};
}

// Where arguments do not pass one by one: bind(f, scene, args) calls f as the library's function is
// called.
template <auto kLibrary, auto kReference, class Bind>
constexpr Function With(const char *name, Family family, const char *kinds, Bind) {
  return {name, family, kinds,
          [](Scene &s, const Args &a) { return ResultOf([&] { return Bind()(kLibrary, s, a); }); },
          [](Scene &s, const Args &a) {
            const auto f = [&](auto &&...x) {
              if constexpr (std::is_member_pointer_v<decltype(kReference)>) {
                return (s.reference.*kReference)(x...);
              } else {
                return kReference(x...);
              }
            };
            return ResultOf([&] { return Bind()(f, s, a); });
          }};
}

}  // namespace binding
