// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: kernel queues.

#pragma once

#include <stdint.h>
#include <time.h>

#define EVFILT_PROC (-5)
#define EV_ADD 0x0001
#define EV_ONESHOT 0x0010
#define NOTE_EXIT 0x80000000

struct kevent {
    uintptr_t ident;
    int16_t filter;
    uint16_t flags;
    uint32_t fflags;
    intptr_t data;
    void* udata;
};

#define EV_SET(event, theIdent, theFilter, theFlags, theNotes, theData, theContext)                          \
    do {                                                                                                     \
        struct kevent* set = (event);                                                                        \
        set->ident = (theIdent);                                                                             \
        set->filter = (theFilter);                                                                           \
        set->flags = (theFlags);                                                                             \
        set->fflags = (theNotes);                                                                            \
        set->data = (theData);                                                                               \
        set->udata = (theContext);                                                                           \
    } while (0)

extern "C" {
int kqueue(void);
int kevent(int queue, const struct kevent* changes, int changeCount, struct kevent* events, int eventCount,
           const struct timespec* timeout);
}
