#pragma once
// The events that the spectrum control sends to its parent. Their types are registered by name, so that
// everybody who asks for a name gets the same number.

#include <QEvent>
#include <cstdint>

/// The event type of a name, registered at the first call.
QEvent::Type RegisteredEventType(const char* name);

inline constexpr const char* WM_XCOLORPICKER_SELCHANGE = "WM_XCOLORPICKER_SELCHANGE"; ///< another colour
inline constexpr const char* WM_XCOLORPICKER_SELENDOK = "WM_XCOLORPICKER_SELENDOK";   ///< a double click

class CSpectrumEvent : public QEvent {
public:
    CSpectrumEvent(const char* name, std::uint32_t color, int id)
        : QEvent(RegisteredEventType(name)), m_color(color), m_id(id) {}
    std::uint32_t Color() const { return m_color; } ///< 0x00BBGGRR
    int Id() const { return m_id; }                 ///< of the control

private:
    std::uint32_t m_color;
    int m_id;
};
