#pragma once
// Where in a dialog a member of the model is edited, and how that place is called.

#include "editors/framework/form.h"
#include "editors/framework/working_copy.h"

#include <unordered_map>

class CDialog;

/// The forms of all pages of `dialog`, in their order; not those that a field is made of. Pages that are
/// still to be made are.
std::vector<CForm*> FormsOf(CDialog& dialog);

/// How a place is called, as it is read on the screen.
struct CSpotName {
    QString page;  ///< the tab; empty without tabs
    QString group; ///< its caption; empty for none
    QString item;  ///< the row of the list whose item it is; empty for none
    QString label;
    int before = 0; ///< how many of the same name stand before it

    /// "Page > Group > Item", as far as there are any.
    QString Place() const;
};
CSpotName NameOf(const CSpot& spot);

/// Brings a place into view: its tab, the item of its list, and where its page scrolls. False if it is on a
/// page that does not show now.
bool ShowSpot(const CSpot& spot);
/// Whether a control is on a page that can show now: of pages in one place only one can.
bool CanShow(const QWidget& control);

/// The places of a dialog by the paths of the model. Good until the model changes.
class CSpots {
public:
    CSpots(CDialog& dialog, const model::Places& places);

    struct Found {
        const CSpot* spot = nullptr;
        QString rest;  ///< what of the path lies below the spot, in words: "Line Width"; else empty
        int item = -1; ///< of the spot's list, where the path goes through one of its items
    };
    /// The place of a path, or the nearest one above it; none for a null spot.
    Found Find(const std::string& path) const;

private:
    std::vector<CSpot> m_spots;
    std::unordered_map<std::string, std::size_t> m_byPath;
};

/// A change as it is told.
struct CChangeText {
    CSpotName name;
    QString from, to;
    const CSpot* spot = nullptr; ///< of `spots`; null if no control edits it
    int item = -1;
    bool shows = false; ///< whether there is a place to show

    /// "Depth: 1 to 5".
    QString Line() const;
};
/// `from` and `to` are the places before and after.
CChangeText TextOf(const model::Change& change, const CSpots& spots, const model::Places& from,
                   const model::Places& to);
