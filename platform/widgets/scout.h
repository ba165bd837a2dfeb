#pragma once
// A look into dialogs without running them: while a scout lives, DoModal starts a dialog as ever, lets the
// scout look at it, and gives kCancel. Nothing shows.

#include <functional>
#include <utility>

class CDialog;

class CScout {
public:
    explicit CScout(std::function<void(CDialog&)> look)
        : m_look(std::move(look)), m_before(std::exchange(s_present, this)) {}
    CScout(const CScout&) = delete;
    CScout& operator=(const CScout&) = delete;
    ~CScout() { s_present = m_before; }

    /// Null for none.
    static CScout* Present() { return s_present; }
    void Look(CDialog& dialog) const { m_look(dialog); }

private:
    inline static CScout* s_present = nullptr;
    std::function<void(CDialog&)> m_look;
    CScout* m_before;
};
