/* Preloaded into 32-bit programs that run in qemu's user emulation: its signal frames do not tell the processor's trap number, by
   which wine knows a page fault from other faults. It follows from the signal. */
typedef void handler(int, int*, unsigned*);
struct action {
    handler* handle;
    unsigned mask[32];
    int flags;
    void (*restorer)(void);
};
int __sigaction(int, const struct action*, struct action*);
int sigaction(int, const struct action*, struct action*);

enum { kIllegal = 4, kTrap = 5, kBus = 7, kArithmetic = 8, kSegment = 11, kSignals = 65, kWithInfo = 4 };
/* In a signal's context: five words, then the registers. */
enum { kRegisters = 5, kTrapNumber = 12, kErrorCode = 13 };

static handler* handlers[kSignals];

static unsigned TrapOf(int signal, int code) {
    switch (signal) {
        case kIllegal:
            return 6;
        case kTrap:
            return code == 0x80 ? 3 : 1;
        case kBus:
            return 17;
        case kArithmetic:
            return code == 1 ? 0 : 16;
        default: /* no page, or no right to it; anything else is a general fault */
            return code == 1 || code == 2 ? 14 : 13;
    }
}

static void Complete(int signal, int* info, unsigned* context) {
    unsigned* registers = context + kRegisters;
    if (registers[kTrapNumber] == ~0u) {
        registers[kTrapNumber] = TrapOf(signal, info[2]);
        if (registers[kTrapNumber] == 13) {
            registers[kErrorCode] = 0;
        }
    }
    handlers[signal](signal, info, context);
}

static int IsFault(int signal) {
    return signal == kIllegal || signal == kTrap || signal == kBus || signal == kArithmetic || signal == kSegment;
}

int sigaction(int signal, const struct action* next, struct action* last) {
    handler* const before = IsFault(signal) ? handlers[signal] : 0;
    struct action completed;
    if (next && IsFault(signal) && (next->flags & kWithInfo)) {
        completed = *next;
        handlers[signal] = next->handle;
        completed.handle = Complete;
        next = &completed;
    }
    const int result = __sigaction(signal, next, last);
    if (!result && last && last->handle == Complete) {
        last->handle = before;
    }
    return result;
}
