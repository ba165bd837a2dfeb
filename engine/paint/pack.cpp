#include "engine/paint/pack.h"

#include <QtEndian>
#include <cstring>

#if defined(__x86_64__) && defined(__GNUC__)
#define CHART_PACKS_BY_SHUFFLE
#include <immintrin.h>
#endif

namespace chartdraw {

namespace {

/// The pixel over white, in the order of the file.
quint32 overWhite(QRgb pixel) {
    return qToLittleEndian(pixel + (255 - (pixel >> 24)) * 0x010101U);
}

#ifdef CHART_PACKS_BY_SHUFFLE
constexpr int kTaken = 4; // pixels at a time, of whose 16 bytes 12 are of the file

/// Packs pixels from the first one on as long as the bytes of the row take 16 at a time; gives their number.
[[gnu::target("ssse3")]] int packByShuffle(const QRgb* pixels, int count, uchar* bytes) {
    const __m128i alphas = _mm_setr_epi8(3, 3, 3, -1, 7, 7, 7, -1, 11, 11, 11, -1, 15, 15, 15, -1);
    const __m128i packed = _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
    const __m128i all = _mm_set1_epi8(-1);
    int done = 0;
    for (; done + kTaken + 2 <= count; done += kTaken, bytes += 3 * kTaken) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels + done));
        const __m128i white = _mm_xor_si128(_mm_shuffle_epi8(four, alphas), all);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(bytes),
                         _mm_shuffle_epi8(_mm_add_epi8(four, white), packed));
    }
    return done;
}
#endif

} // namespace

void packRowAnywhere(const QRgb* pixels, int count, uchar* bytes) {
    // Four bytes at a time, of which the next pixel writes the last one again.
    for (int x = 0; x + 1 < count; ++x, bytes += 3) {
        const quint32 pixel = overWhite(pixels[x]);
        std::memcpy(bytes, &pixel, sizeof(pixel));
    }
    if (count > 0) {
        const quint32 pixel = overWhite(pixels[count - 1]);
        std::memcpy(bytes, &pixel, 3);
    }
}

void packRow(const QRgb* pixels, int count, uchar* bytes) {
    int done = 0;
#ifdef CHART_PACKS_BY_SHUFFLE
    static const bool shuffles = __builtin_cpu_supports("ssse3");
    if (shuffles)
        done = packByShuffle(pixels, count, bytes);
#endif
    packRowAnywhere(pixels + done, count - done, bytes + 3 * done);
}

} // namespace chartdraw
