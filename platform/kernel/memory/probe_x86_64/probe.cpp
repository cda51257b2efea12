// Memory probes: the bytes are touched, and a fault handler answers for those that cannot be. Good memory costs neither
// a system call nor a jump buffer. A touch for writing is one locked instruction that leaves the byte as it is, so that
// no other thread's write is ever lost. Most of what is asked about lies on the caller's own stack, in the heap that
// grows by brk, among the program's variables or in pages of VirtualAlloc, which are writable from end to end: these are known
// by their bounds.
#include <windows.h>

#include <link.h>
#include <pthread.h>
#include <signal.h>
#include <ucontext.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "kernel/memory/pages.h"
#include "kernel/memory/probe_range.h"

namespace {

// One entry for each instruction that may fault and the place where it goes on when it did, both relative to
// themselves.
struct Fixup {
    std::int32_t instruction;
    std::int32_t resume;
};
extern "C" const Fixup __start_cvprobe[] __attribute__((visibility("hidden")));
extern "C" const Fixup __stop_cvprobe[] __attribute__((visibility("hidden")));

#define CVPROBE_FIXUP(bad)                              \
    ".pushsection cvprobe,\"a\",@progbits\n.balign 4\n" \
    ".long 1b - .\n"                                    \
    ".long %l[" #bad                                    \
    "] - .\n"                                           \
    ".popsection\n"

inline __attribute__((always_inline)) bool CanWrite(std::uintptr_t address) {
    asm goto("1: lock orb $0, (%0)\n" CVPROBE_FIXUP(bad) : : "r"(address) : "memory", "cc" : bad);
    return true;
bad:
    return false;
}

inline __attribute__((always_inline)) bool CanRead(std::uintptr_t address) {
    asm goto("1: testb $0, (%0)\n" CVPROBE_FIXUP(bad) : : "r"(address) : "memory", "cc" : bad);
    return true;
bad:
    return false;
}

constexpr std::uintptr_t kPage = 4096;

struct Range {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;

    bool Holds(std::uintptr_t first, std::uintptr_t last) const {
        return first >= begin && last < end;
    }
};

// What a thread knows of memory that can be written, in one place: each thing known is a compare, and no more.
struct Known {
    platform::kernel::PageRun pages;  ///< of VirtualAlloc, those that were asked about last
    Range stack;                      ///< the end is 0 until it is asked for
    unsigned touches = 0;
};
constinit __attribute__((tls_model("initial-exec"))) thread_local Known t_known;

// The program's own variables.
Range g_data;
std::uintptr_t g_heapBegin = ~std::uintptr_t{0};

// The C library's note of where the heap ends, which goes up and down; not every C library has one.
extern "C" __attribute__((weak)) char* __curbrk;
char* g_dataEnd = nullptr;
char* const* g_heapEnd = &g_dataEnd;

// Whether memory lies in the frames of the callers: from the frame of the probe up to the stack's end. A thread may
// also run on a stack of somebody else's making (a signal's, a coroutine's), of which nothing is known.
inline __attribute__((always_inline)) bool IsOnStack(std::uintptr_t first, std::uintptr_t last) {
    std::uintptr_t frame;
    asm("mov %%rsp, %0" : "=r"(frame));
    return last < t_known.stack.end && first >= frame && frame >= t_known.stack.begin;
}

// Variables and the heap that grows by brk lie lowest in a process; what is mapped and the stacks lie above them.
inline __attribute__((always_inline)) bool IsBelowHeapEnd(std::uintptr_t address) {
    return address < reinterpret_cast<std::uintptr_t>(*g_heapEnd);
}

inline __attribute__((always_inline)) bool IsInKnownPages(std::uintptr_t first, std::uintptr_t last) {
    const auto& pages = t_known.pages;
    return first >= pages.begin && last - pages.begin < pages.size && pages.age == platform::kernel::g_pagesAge.load();
}

__attribute__((noinline)) void LearnStack() {
    t_known.stack = {~std::uintptr_t{0}, 1};  // if it cannot be had, it is not asked for again
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
        return;
    }
    void* begin = nullptr;
    std::size_t size = 0;
    if (pthread_attr_getstack(&attributes, &begin, &size) == 0) {
        const auto first = reinterpret_cast<std::uintptr_t>(begin);
        t_known.stack = {first, first + size};
    }
    pthread_attr_destroy(&attributes);
}

// The writable segment of the program, without what is made read-only once it is loaded.
int LearnData(dl_phdr_info* program, std::size_t, void*) {
    Range data{};
    std::uintptr_t constants = 0;
    for (int i = 0; i < program->dlpi_phnum; ++i) {
        const auto& segment = program->dlpi_phdr[i];
        const std::uintptr_t end = program->dlpi_addr + segment.p_vaddr + segment.p_memsz;
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_W)) {
            data = {end - segment.p_memsz, end};
        } else if (segment.p_type == PT_GNU_RELRO) {
            constants = (end + kPage - 1) & ~(kPage - 1);
        }
    }
    g_data = {std::max(data.begin, constants), data.end};
    return 1;  // the first one is the program itself
}

// What malloc gives out early lies near the heap's beginning, unless the heap is of another kind.
__attribute__((constructor)) void LearnMemory() {
    dl_iterate_phdr(LearnData, nullptr);
    g_dataEnd = reinterpret_cast<char*>(g_data.end);
    void* const block = std::malloc(1);
    const auto first = reinterpret_cast<std::uintptr_t>(block);
    if (block && &__curbrk && first > g_data.end && first < reinterpret_cast<std::uintptr_t>(__curbrk)) {
        g_heapBegin = first;
        g_heapEnd = &__curbrk;
    }
    std::free(block);
}

bool ReadTouch(std::uintptr_t address) {
    return CanRead(address);
}

bool WriteTouch(std::uintptr_t address) {
    return CanWrite(address);
}

// Asking about the pages takes longer than the touch, and is for nothing where they are not of VirtualAlloc: it is done once
// in a while.
__attribute__((noinline)) bool TouchAndLearn(std::uintptr_t address) {
    constexpr unsigned kOnceInTouches = 32;
    if (!t_known.stack.end) {
        LearnStack();
    }
    if (!CanWrite(address)) {
        return false;
    }
    if (t_known.touches++ % kOnceInTouches == 0) {
        t_known.pages = platform::kernel::WritablePages(address);
    }
    return true;
}

struct sigaction previousSegv;
struct sigaction previousBus;

bool ResumeAfterProbe(ucontext_t* context) {
    auto& rip = context->uc_mcontext.gregs[REG_RIP];
    for (const Fixup* fixup = __start_cvprobe; fixup != __stop_cvprobe; ++fixup) {
        const auto at = reinterpret_cast<std::uintptr_t>(&fixup->instruction) + fixup->instruction;
        if (static_cast<std::uintptr_t>(rip) == at) {
            rip = static_cast<greg_t>(reinterpret_cast<std::uintptr_t>(&fixup->resume) + fixup->resume);
            return true;
        }
    }
    return false;
}

void OnFault(int signal, siginfo_t* info, void* context) {
    if (info->si_code > 0 && ResumeAfterProbe(static_cast<ucontext_t*>(context))) {
        return;
    }
    const struct sigaction& previous = signal == SIGSEGV ? previousSegv : previousBus;
    if (previous.sa_flags & SA_SIGINFO) {
        previous.sa_sigaction(signal, info, context);
    } else if (previous.sa_handler == SIG_IGN && info->si_code <= 0) {
        return;
    } else if (previous.sa_handler != SIG_DFL && previous.sa_handler != SIG_IGN) {
        previous.sa_handler(signal);
    } else {
        // The faulting instruction runs again under the default action and ends the process with the right signal.
        sigaction(signal, &previous, nullptr);
        if (info->si_code <= 0) {
            raise(signal);
        }
    }
}

__attribute__((constructor)) void InstallFaultHandler() {
    struct sigaction action {};
    action.sa_sigaction = OnFault;
    // A handler further down may leave by a jump, and must not leave the signal blocked: a blocked fault ends the
    // process.
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
    sigemptyset(&action.sa_mask);
    sigaction(SIGSEGV, &action, &previousSegv);
    sigaction(SIGBUS, &action, &previousBus);
}

}  // namespace

BOOL WINAPI IsBadWritePtr(LPVOID address, UINT_PTR bytes) {
    const auto first = reinterpret_cast<std::uintptr_t>(address);
    const std::uintptr_t last = first + bytes - 1;
    if (first <= last) [[likely]] {
        if (IsBelowHeapEnd(last) ? first >= g_heapBegin || g_data.Holds(first, last)
                                 : IsInKnownPages(first, last) || IsOnStack(first, last)) [[likely]] {
            return FALSE;
        }
        if ((first ^ last) < kPage) {
            return !TouchAndLearn(first);
        }
    }
    return bytes != 0 && !platform::kernel::RangeIsGood<WriteTouch>(first, bytes, kPage);
}

namespace platform::kernel {

bool IsReadable(const void* memory, std::size_t size) {
    return size == 0 || RangeIsGood<ReadTouch>(reinterpret_cast<std::uintptr_t>(memory), size, kPage);
}

std::size_t ProbeLength(const char* text, std::size_t most) {
    return LengthOf<ReadTouch>(text, most, kPage);
}

}  // namespace platform::kernel
