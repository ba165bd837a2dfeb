#pragma once
// The search through all rows of a dialog and of the dialogs that it opens.

#include "editors/framework/spots.h"

#include <QFrame>
#include <memory>

class CStrip;
class QLineEdit;
class QListWidget;

/// The way to one row: through the dialogs that it takes, then to the row itself.
struct CSearchRow {
    CSpotName name;
    QString value;
    QString opener; ///< what opens the dialog that it stands in, as it is told; empty for this one
    std::function<void()> go;
};

/// Whether all words of `query` are in the name, the value or the place of a row, as they stand or by a word
/// that means the same; the better the lower, -1 for no.
int RankOf(const CSearchRow& row, const QString& query);

class CSearch : public QFrame {
public:
    /// Opens it over `anchor`; it is the strip's and dies when it closes.
    static void Open(CStrip& strip, QWidget& anchor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CSearch(CStrip& strip, std::vector<CSearchRow> rows);
    void Filter();
    void Go();

    std::vector<CSearchRow> m_rows;
    std::vector<const CSearchRow*> m_found;
    QLineEdit* m_query;
    QListWidget* m_list;
};
