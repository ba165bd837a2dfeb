#pragma once
// For the few loops that go over millions of numbers: compiled a second time for processors that take more
// numbers at a time, and the better way is chosen when the library is loaded. Such loops are in blocks
// without branches, and call nothing that is not compiled into them.

#if defined(__x86_64__) && defined(__linux__) && defined(__GNUC__) && !defined(__clang__) &&                 \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define CHART_FAST_LOOP [[gnu::target_clones("avx2", "default")]]
#else
#define CHART_FAST_LOOP
#endif
