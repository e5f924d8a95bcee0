// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem, Grand Central Dispatch: queues and semaphores.

#pragma once

#include <stdint.h>

#pragma clang assume_nonnull begin

@protocol OS_dispatch_object
@end
@protocol OS_dispatch_queue <OS_dispatch_object>
@end
@protocol OS_dispatch_semaphore <OS_dispatch_object>
@end

typedef id<OS_dispatch_queue> dispatch_queue_t;
typedef id<OS_dispatch_semaphore> dispatch_semaphore_t;
typedef uint64_t dispatch_time_t;
typedef void (^dispatch_block_t)(void);

#define DISPATCH_TIME_NOW (0ull)
#define DISPATCH_TIME_FOREVER (~0ull)

extern "C" {
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
dispatch_queue_t dispatch_get_main_queue(void);
dispatch_semaphore_t dispatch_semaphore_create(intptr_t value) __attribute__((ns_returns_retained));
intptr_t dispatch_semaphore_signal(dispatch_semaphore_t semaphore);
intptr_t dispatch_semaphore_wait(dispatch_semaphore_t semaphore, dispatch_time_t timeout);
}

#pragma clang assume_nonnull end
