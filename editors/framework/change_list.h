#pragma once
// The list of what has changed since a dialog was opened, by page and group, each with a way back and a way
// to its row. It opens above the strip and closes by itself.

#include <QFrame>

class CStrip;
class QGridLayout;

class CChangeList : public QFrame {
public:
    /// Opens it over `anchor`; it is the strip's and dies when it closes.
    static void Open(CStrip& strip, QWidget& anchor);

private:
    CChangeList(CStrip& strip, QWidget& anchor);
    void Fill();

    CStrip& m_strip;
    QWidget& m_anchor;
    QWidget* m_rows = nullptr;
};

/// Puts a window that pops up over `anchor`, inside the screen.
void PlaceAbove(QWidget& popup, const QWidget& anchor);
