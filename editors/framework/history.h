#pragma once
// The steps of an editor dialog, back to what the host gave.

#include "editors/framework/working_copy.h"

#include <functional>

class CHistory {
public:
    /// What the host gave is what `copy` holds now.
    explicit CHistory(CWorkingCopy& copy);

    /// Takes in what has changed since the last time, as one step. False if nothing that counts has. Changes
    /// of one gesture at one path make one step: an arrow that is held down.
    bool Commit(unsigned gesture);

    bool CanUndo() const { return m_now > 0; }
    bool CanRedo() const { return m_now + 1 < m_steps.size(); }
    /// What the step back, or forth, would change; only while there is one.
    const std::vector<model::Change>& UndoStep() const { return m_steps[m_now].changes; }
    const std::vector<model::Change>& RedoStep() const { return m_steps[m_now + 1].changes; }
    void Undo() { Go(m_now - 1); }
    void Redo() { Go(m_now + 1); }

    /// The copy as it was before the step back; only while there is one.
    const CWorkingCopy::Kept& BeforeStep() const { return m_steps[m_now - 1].kept; }
    /// And after the step forth.
    const CWorkingCopy::Kept& AfterStep() const { return m_steps[m_now + 1].kept; }
    /// What the host gave.
    const CWorkingCopy::Kept& Opening() const { return m_steps.front().kept; }
    const model::Places& OpeningPlaces() const { return m_opening; }
    /// The copy as it was at the last call of `Commit`, `Undo` or `Redo`.
    const model::Places& Places() const { return m_places; }
    /// What differs from it now.
    std::vector<model::Change> SinceOpening() const { return model::Changes(m_opening, m_places); }

private:
    struct Step {
        CWorkingCopy::Kept kept; ///< as it was after the step
        std::vector<model::Change> changes;
        unsigned gesture = 0;
    };
    void Go(std::size_t step);

    CWorkingCopy& m_copy;
    std::vector<Step> m_steps; ///< the first is what the host gave
    std::size_t m_now = 0;
    model::Places m_opening;
    model::Places m_places;
};
