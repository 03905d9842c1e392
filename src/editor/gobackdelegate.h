#pragma once

/**
 * The home shell's callback for an editor that stored the user's design on its way back, so that what
 * lists the designs shows it. The application holds one weakly: a delegate that goes away unregisters.
 */
class GoBackDelegate
{
public:
    virtual ~GoBackDelegate()
    {
        if (s_shared == this)
            s_shared = nullptr;
    }

    /** An editor saved the design and is leaving. */
    virtual void goBack() = 0;

    [[nodiscard]] static GoBackDelegate *shared() { return s_shared; }
    static void setShared(GoBackDelegate *delegate) { s_shared = delegate; }

private:
    static inline GoBackDelegate *s_shared = nullptr;
};
