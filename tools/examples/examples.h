#pragma once
/* What examples.c has to show. */

#ifdef __cplusplus
extern "C" {
#endif

struct BaseChart;

/** A chart of the gallery page: the name of the function in examples.c that makes it, and that function. */
struct Example {
    const char* name;
    struct BaseChart* (*make)(void);
};

extern const struct Example examples[];
extern const int exampleCount;

#ifdef __cplusplus
}
#endif
