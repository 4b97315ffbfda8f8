// Sanitised builds run a part of the random cases.
#pragma once

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define BRISAL_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(undefined_behavior_sanitizer) || \
    __has_feature(memory_sanitizer)
#define BRISAL_SANITIZED 1
#endif
#endif
#ifndef BRISAL_SANITIZED
#define BRISAL_SANITIZED 0
#endif

constexpr int Scaled(int count) { return BRISAL_SANITIZED ? (count + 19) / 20 : count; }
