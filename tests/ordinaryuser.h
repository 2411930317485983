#pragma once

#include <unistd.h>

/// While it lives, the program is an ordinary user, whom permissions bind: root makes itself one for the time.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_wasRoot(geteuid() == 0)
    {
        constexpr uid_t nobody = 65534;
        if (m_wasRoot && setresuid(nobody, nobody, 0) != 0)
            m_isOrdinary = false;
    }
    ~OrdinaryUser()
    {
        if (m_wasRoot && m_isOrdinary && setresuid(0, 0, 0) != 0)
            _exit(1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// False where root may not become anybody else.
    bool IsOrdinary() const { return m_isOrdinary; }

private:
    bool m_wasRoot;
    bool m_isOrdinary = true;
};
