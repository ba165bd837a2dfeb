#include "editors/framework/search.h"

#include "editors/framework/change_list.h"
#include "editors/framework/strip.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {

/// Words that people use for what the rows call otherwise.
constexpr std::pair<const char*, const char*> kSynonyms[] = {
    {"colour", "color"},   {"fill", "back"},         {"background", "back"}, {"outline", "edge"},
    {"border", "edge"},    {"frame", "edge"},        {"thickness", "width"}, {"thick", "width"},
    {"rotation", "angle"}, {"rotate", "angle"},      {"degrees", "angle"},   {"typeface", "font"},
    {"caption", "title"},  {"heading", "title"},     {"slice", "sector"},    {"wedge", "sector"},
    {"hole", "donut"},     {"picture", "image"},     {"wallpaper", "image"}, {"visible", "show"},
    {"hide", "show"},      {"transparent", "alpha"}, {"gap", "spacing"},     {"spacing", "gap"},
    {"minimum", "lower"},  {"maximum", "upper"},     {"marker", "symbol"},   {"needle", "pointer"},
    {"curve", "line"},     {"hint", "tooltip"},      {"light", "effect"},    {"shadow", "effect"},
    {"depth", "3d"},       {"place", "position"},    {"order", "layer"}};

bool Holds(const QString& text, const QString& word) {
    return text.contains(word, Qt::CaseInsensitive);
}

QString Line(const CSearchRow& row) {
    QStringList place{row.opener, row.name.Place()};
    place.removeAll(QString());
    QString line = row.name.label;
    if (!row.value.isEmpty())
        line += QStringLiteral(": ") + row.value;
    return place.isEmpty() ? line
                           : line + QStringLiteral("   \u2014   ") + place.join(QStringLiteral(" \u203a "));
}

} // namespace

int RankOf(const CSearchRow& row, const QString& query) {
    const QString& label = row.name.label;
    const QString all = QStringList{label, row.name.Place(), row.opener, row.value}.join(u' ');
    for (const QString& word : query.split(u' ', Qt::SkipEmptyParts)) {
        const bool meant = std::any_of(std::begin(kSynonyms), std::end(kSynonyms), [&](const auto& pair) {
            return word.compare(QLatin1String(pair.first), Qt::CaseInsensitive) == 0 &&
                   Holds(all, QLatin1String(pair.second));
        });
        if (!meant && !Holds(all, word))
            return -1;
    }
    if (label.compare(query.trimmed(), Qt::CaseInsensitive) == 0)
        return 0;
    if (label.startsWith(query.trimmed(), Qt::CaseInsensitive))
        return 1;
    return Holds(label, query.trimmed()) ? 2 : 3;
}

void CSearch::Open(CStrip& strip, QWidget& anchor) {
    auto* search = new CSearch(strip, strip.SearchRows());
    search->Filter();
    const int line = search->fontMetrics().height();
    search->resize(std::min(strip.window()->width() - 20, line * 34), line * 16);
    PlaceAbove(*search, anchor);
    search->show();
    search->m_query->setFocus();
}

CSearch::CSearch(CStrip& strip, std::vector<CSearchRow> rows)
    : QFrame(&strip, Qt::Popup), m_rows(std::move(rows)), m_query(new QLineEdit(this)),
      m_list(new QListWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("SearchList"));
    setAccessibleName(QStringLiteral("Search"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    m_query->setObjectName(QStringLiteral("Search for"));
    m_query->setAccessibleName(QStringLiteral("Search for"));
    m_query->setPlaceholderText(QStringLiteral("Search all rows: a label, a page, a value"));
    m_query->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("Found rows"));
    m_list->setAccessibleName(QStringLiteral("Found rows"));
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFocusPolicy(Qt::NoFocus);
    auto* all = new QVBoxLayout(this);
    all->addWidget(m_query);
    all->addWidget(m_list);
    m_query->installEventFilter(this);
    connect(
        m_query, &QLineEdit::textChanged, this, [this] { Filter(); });
    connect(
        m_list, &QListWidget::itemClicked, this, [this] { Go(); }, Qt::QueuedConnection);
}

void CSearch::Filter() {
    m_found.clear();
    std::vector<std::pair<int, const CSearchRow*>> ranked;
    for (const CSearchRow& row : m_rows)
        if (const int rank = RankOf(row, m_query->text()); rank >= 0)
            ranked.emplace_back(rank, &row);
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    m_list->clear();
    for (const auto& [rank, row] : ranked) {
        m_found.push_back(row);
        m_list->addItem(Line(*row).replace(u'\n', u' '));
    }
    m_list->setCurrentRow(m_found.empty() ? -1 : 0);
}

bool CSearch::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Go();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_list->setCurrentRow(std::clamp(m_list->currentRow() + (key.key() == Qt::Key_Up       ? -1
                                                                 : key.key() == Qt::Key_Down   ? 1
                                                                 : key.key() == Qt::Key_PageUp ? -10
                                                                                               : 10),
                                         0, std::max(0, m_list->count() - 1)));
        return true;
    default:
        return false;
    }
}

void CSearch::Go() {
    const int row = m_list->currentRow();
    if (row < 0 || row >= std::ssize(m_found))
        return;
    const std::function<void()> go = m_found[static_cast<std::size_t>(row)]->go;
    close();
    // When this window has gone: a dialog may open on the way.
    QMetaObject::invokeMethod(parent(), go, Qt::QueuedConnection);
}
