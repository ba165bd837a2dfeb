#include "engine/text/application.h"

#include <QGuiApplication>
#include <QMetaType>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <mutex>
#include <thread>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace chartdraw {

namespace {

std::atomic<bool> s_ready = false;
std::atomic<int> s_count = 0;

// What has made the object. Neither is ever destroyed: the end of the process may come on any thread, and the
// object must outlive every chart. Volatile, so that a leak checker finds it.
void* volatile s_factory = nullptr;

void makeByFactory() {
    if (const QMetaType type = QMetaType::fromName("charteditors::ApplicationFactory"); type.isValid())
        s_factory = type.create();
}

void makeGuiApplication() {
    // Pictures need no display, and a platform plugin that cannot reach its display ends the process: what
    // the environment asks for is meant for windows.
    static char name[] = "chart";
    static char option[] = "-platform";
#if defined(Q_OS_WIN)
    static char platform[] = "windows"; // which knows the system's fonts, and always has its display
#elif defined(Q_OS_DARWIN)
    static char platform[] = "cocoa";
#else
    static char platform[] = "offscreen";
#endif
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = 3;
    new QGuiApplication(count, arguments);
}

std::atomic<int> s_running = 0; ///< operations at work
std::atomic<bool> s_ending = false;

/// Whether the system has ended all other threads, in the midst of what they did.
bool othersAreGone() {
#ifdef Q_OS_WIN
    using Query = BOOLEAN(WINAPI*)();
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlDllShutdownInProgress")));
    return query && query();
#else
    return false;
#endif
}

void endUse() {
    if (s_ending.exchange(true))
        return;
    // Long enough for any picture of sensible size; one that never comes must not keep the process.
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (s_running.load() > 0 && !othersAreGone() && std::chrono::steady_clock::now() < patience)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

} // namespace

ProcessUse::ProcessUse() {
    s_running.fetch_add(1);
    m_granted = !s_ending.load();
}

ProcessUse::~ProcessUse() {
    s_running.fetch_sub(1);
}

void watchForTheEnd() {
    // Routines of the end run in the reverse order, mixed with the destructors of what was made in between.
    std::atexit(endUse);
}

void ensureApplication() {
    if (s_ready.load(std::memory_order_acquire))
        return;
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    if (s_ready.load(std::memory_order_acquire))
        return;
    if (!QCoreApplication::instance())
        makeByFactory();
    if (!QCoreApplication::instance())
        makeGuiApplication();
    s_count.fetch_add(1);
    qAddPostRoutine([] { s_ready.store(false); });
    watchForTheEnd();
    s_ready.store(true, std::memory_order_release);
}

int applicationCount() {
    return s_count.load(std::memory_order_relaxed);
}

bool textAvailable() {
    ensureApplication();
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace chartdraw
