#pragma once

#include <QByteArray>
#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" void __sanitizer_set_death_callback(void (*callback)(void));
#endif

/// What a monkey did last, printed when the program dies, by whichever way.
class MonkeyLog
{
public:
    /// `variable` is what the environment replays the seed by.
    static void Begin(const char* variable, unsigned seed)
    {
        s_variable = variable;
        s_seed = seed;
        s_next = 0;
        for (Line& line : s_lines)
            line[0] = 0;
#ifdef __SANITIZE_ADDRESS__
        __sanitizer_set_death_callback(Print);
#endif
        for (const int number : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGALRM})
            std::signal(number, Die);
    }
    /// The next step begins. Who does not come to another one within a minute hangs.
    static void Add(int step, const QByteArray& text)
    {
        snprintf(s_lines[s_next++ % s_lines.size()].data(), sizeof(Line), "%6d  %s\n", step, text.constData());
        alarm(60);
    }
    static void End() { alarm(0); }
    static void Print()
    {
        Line head;
        Write(head.data(), size_t(snprintf(head.data(), head.size(), "Replay with %s=%u. The last steps:\n", s_variable, s_seed)));
        for (size_t i = 0; i < s_lines.size(); ++i)
        {
            const Line& line = s_lines[(s_next + i) % s_lines.size()];
            Write(line.data(), strnlen(line.data(), line.size()));
        }
    }

private:
    using Line = std::array<char, 160>;

    static void Write(const char* text, size_t size)
    {
        if (write(STDERR_FILENO, text, size) < 0)
            _exit(1);
    }
    static void Die(int number)
    {
        Print();
        std::signal(number, SIG_DFL);
        std::raise(number);
    }

    inline static const char* s_variable = "";
    inline static unsigned s_seed = 0;
    inline static size_t s_next = 0;
    inline static std::array<Line, 40> s_lines;
};
