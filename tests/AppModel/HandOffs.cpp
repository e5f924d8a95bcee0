// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

/// What ThreadSanitizer can't see: Qt's libraries aren't built with it, so passing work to another thread and
/// returning the result looks like a race. The linker redirects the calls that do so to the functions here
/// (with --wrap), which tell ThreadSanitizer. Anything else that two threads share is still reported.

#include <QCoreApplication>
#include <QFutureInterfaceBase>
#include <QThreadPool>

#include <sanitizer/tsan_interface.h>

namespace {

char g_handOff; ///< stands for whatever the threads pass to each other

void give() {
    __tsan_release(&g_handOff);
}

void take() {
    __tsan_acquire(&g_handOff);
}

/// Sees every event of the main thread before its receiver does: results arrive in events.
class Arrivals final : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent*) override {
        take();
        return false;
    }
};

void watchArrivals() {
    QCoreApplication* const application = QCoreApplication::instance();
    application->installEventFilter(new Arrivals(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchArrivals)

/// Calls from libraries that aren't built with it are of no use to it either.
extern "C" const char* __tsan_default_options() {
    return "ignore_noninstrumented_modules=1";
}

#define REAL(symbol) asm("__real_" symbol)
#define WRAPPED(symbol) asm("__wrap_" symbol)

// Work is given to a pool. On the other thread, it first asks whether it is still wanted.

void realStart(QThreadPool*, QRunnable*, int) REAL("_ZN11QThreadPool5startEP9QRunnablei");
void start(QThreadPool*, QRunnable*, int) WRAPPED("_ZN11QThreadPool5startEP9QRunnablei");
void start(QThreadPool* pool, QRunnable* work, int priority) {
    give();
    realStart(pool, work, priority);
}

bool realIsCanceled(const QFutureInterfaceBase*) REAL("_ZNK20QFutureInterfaceBase10isCanceledEv");
bool isCanceled(const QFutureInterfaceBase*) WRAPPED("_ZNK20QFutureInterfaceBase10isCanceledEv");
bool isCanceled(const QFutureInterfaceBase* future) {
    take();
    return realIsCanceled(future);
}

// The work reports its result or progress.

void realReportFinished(QFutureInterfaceBase*) REAL("_ZN20QFutureInterfaceBase14reportFinishedEv");
void reportFinished(QFutureInterfaceBase*) WRAPPED("_ZN20QFutureInterfaceBase14reportFinishedEv");
void reportFinished(QFutureInterfaceBase* future) {
    give();
    realReportFinished(future);
}

bool realInvoke(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)
    REAL("_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
bool invoke(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*) WRAPPED(
    "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
bool invoke(QObject* receiver, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type, void* result) {
    give();
    return realInvoke(receiver, slot, type, result);
}

// Waiting for the work returns when it ends.

bool realWaitForDone(QThreadPool*, int) REAL("_ZN11QThreadPool11waitForDoneEi");
bool waitForDone(QThreadPool*, int) WRAPPED("_ZN11QThreadPool11waitForDoneEi");
bool waitForDone(QThreadPool* pool, int limit) {
    const bool isDone = realWaitForDone(pool, limit);
    take();
    return isDone;
}

void realWaitForFinished(QFutureInterfaceBase*) REAL("_ZN20QFutureInterfaceBase15waitForFinishedEv");
void waitForFinished(QFutureInterfaceBase*) WRAPPED("_ZN20QFutureInterfaceBase15waitForFinishedEv");
void waitForFinished(QFutureInterfaceBase* future) {
    realWaitForFinished(future);
    take();
}

// The last one to release a result deletes it.

bool realDeref(const QFutureInterfaceBase*) noexcept REAL("_ZNK20QFutureInterfaceBase6derefTEv");
bool deref(const QFutureInterfaceBase*) noexcept WRAPPED("_ZNK20QFutureInterfaceBase6derefTEv");
bool deref(const QFutureInterfaceBase* future) noexcept {
    give();
    const bool isShared = realDeref(future);
    take();
    return isShared;
}
