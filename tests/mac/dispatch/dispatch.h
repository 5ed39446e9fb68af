#pragma once
// Stand-in written from the documentation pages of the Dispatch symbols the macOS layer uses;
// not Apple's header.
#include <stdint.h>

typedef struct nevo_dispatch_queue* dispatch_queue_t;
typedef uint64_t dispatch_time_t;
typedef void (^dispatch_block_t)(void);

#define DISPATCH_TIME_NOW (0ull)
#define NSEC_PER_SEC 1000000000ull

extern "C" {
dispatch_queue_t _Nonnull dispatch_get_main_queue(void);
void dispatch_async(dispatch_queue_t _Nonnull queue, dispatch_block_t _Nonnull block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t _Nonnull queue,
                    dispatch_block_t _Nonnull block);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
}
