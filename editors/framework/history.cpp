#include "editors/framework/history.h"

namespace {

/// Far more than a person remembers. Beyond it the oldest steps become one, so that all the way back is still
/// what the host gave.
constexpr std::size_t kMostSteps = 1000;

} // namespace

CHistory::CHistory(CWorkingCopy& copy) : m_copy(copy), m_places(copy.Places()) {
    m_steps.push_back({copy.Keep(), {}});
    m_opening = copy.PlacesOf(Opening());
}

bool CHistory::Commit(unsigned gesture) {
    model::Places places = m_copy.Places();
    std::vector<model::Change> changes = model::Changes(m_places, places);
    m_places = std::move(places); // without a change too: addresses may be others
    if (changes.empty())
        return false;
    Step& top = m_steps[m_now];
    const bool goesOn = m_now > 0 && !CanRedo() && gesture != 0 && top.gesture == gesture &&
                        top.changes.size() == 1 && changes.size() == 1 &&
                        top.changes.front().path == changes.front().path;
    if (goesOn) {
        top.kept = m_copy.Keep();
        top.changes.front().to = changes.front().to;
        if (top.changes.front().to == top.changes.front().from) { // and came back
            m_steps.pop_back();
            --m_now;
        }
        return true;
    }
    m_steps.resize(m_now + 1);
    m_steps.push_back({m_copy.Keep(), std::move(changes), gesture});
    ++m_now;
    if (m_steps.size() > kMostSteps) {
        m_steps[2].changes = model::Changes(m_opening, m_copy.PlacesOf(m_steps[2].kept));
        m_steps.erase(m_steps.begin() + 1);
        --m_now;
    }
    return true;
}

void CHistory::Go(std::size_t step) {
    m_now = step;
    m_steps[m_now].gesture = 0; // what follows is a new step
    m_copy.Restore(m_steps[m_now].kept);
    m_places = m_copy.Places();
}
