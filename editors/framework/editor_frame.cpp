#include "editors/framework/editor_frame.h"

#include "editors/framework/scroll_room.h"
#include "editors/framework/strip.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMap>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

namespace {

constexpr QSize kSmallestScreen(1366, 768);
constexpr int kSpace = 10;
constexpr QSize kFrame(12, 44); // borders and title bar
constexpr QSize kLeastPreview(100, 100);

/// What the screen holds of a dialog inside its frame. Where nobody looks, the smallest screen that the
/// editors are made for.
QSize Room(const CDialog& dialog) {
    const bool seen = QGuiApplication::platformName() != QStringLiteral("offscreen");
    return (seen ? dialog.screen()->availableSize() : kSmallestScreen) - kFrame;
}

/// The size that a person has given to a dialog, by its caption, as long as the library is loaded.
QSize& KeptSize(const QString& caption) {
    static QMap<QString, QSize> sizes;
    return sizes[caption];
}

/// Keeps the size of a dialog that closes with another one than it was opened with.
class CSizeKeeper : public QObject {
public:
    explicit CSizeKeeper(CDialog& dialog) : QObject(&dialog), m_dialog(dialog) {
        connect(
            &dialog, &QDialog::finished, this,
            [this] {
                if (m_dialog.size() != m_opened)
                    KeptSize(m_dialog.windowTitle()) = m_dialog.size();
            });
    }
    void Open(const QSize& natural) {
        const QSize kept = KeptSize(m_dialog.windowTitle());
        m_dialog.resize((kept.isValid() ? kept : natural).boundedTo(Room(m_dialog)));
        m_opened = m_dialog.size();
    }

private:
    CDialog& m_dialog;
    QSize m_opened;
};

/// The controls that stand in `layout`, in its order: what has a layout of its own is a room for others.
void CollectControls(const QLayout* layout, std::vector<QWidget*>& controls) {
    for (int i = 0; layout != nullptr && i < layout->count(); ++i) {
        const QLayoutItem* item = layout->itemAt(i);
        QWidget* widget = item->widget();
        if (widget == nullptr || (widget->layout() != nullptr && widget->focusPolicy() == Qt::NoFocus))
            CollectControls(widget == nullptr ? const_cast<QLayoutItem*>(item)->layout() : widget->layout(),
                            controls);
        else
            controls.push_back(widget);
    }
}

CStrip* FindStrip(const QDialog& dialog) {
    for (QObject* child : dialog.children())
        if (auto* strip = dynamic_cast<CStrip*>(child))
            return strip;
    return nullptr;
}

/// Tab goes through the parts in their order, as they are laid out; then to the preview, which has nothing to
/// edit, to the buttons at the foot, and to the strip.
void OrderTabs(QDialog& dialog, const CEditorParts& parts) {
    std::vector<QWidget*> controls;
    CollectControls(parts.abovePreview, controls);
    CollectControls(parts.left, controls);
    CollectControls(parts.body, controls);
    if (parts.preview != nullptr)
        controls.push_back(parts.preview);
    if (auto* foot = dialog.findChild<QDialogButtonBox*>()) {
        CollectControls(foot->layout(), controls);
        foot->setFocusProxy(nullptr); // or it is one more stop on OK, behind the strip
    }
    if (const auto* strip = FindStrip(dialog))
        CollectControls(strip->layout(), controls);
    QWidget* last = &dialog;
    for (QWidget* control : controls) {
        std::vector<QWidget*> stops;
        for (QWidget* next = dialog.nextInFocusChain(); next != &dialog; next = next->nextInFocusChain())
            if (next->focusPolicy() != Qt::NoFocus && (next == control || control->isAncestorOf(next)))
                stops.push_back(next);
        for (QWidget* stop : stops) {
            QWidget::setTabOrder(last, stop);
            last = stop;
        }
    }
}

QLayout* PreviewColumn(CChartPreviewView& preview, QLayout* above) {
    preview.setObjectName(QStringLiteral("Preview"));
    preview.setAccessibleName(QStringLiteral("Preview"));
    preview.setFocusPolicy(Qt::StrongFocus);
    // It has what the others leave: more in a larger dialog, less on a small screen.
    preview.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    preview.setMinimumSize(kLeastPreview);
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpace);
    if (above != nullptr)
        column->addLayout(above);
    column->addWidget(&preview, 1);
    return column;
}

/// Pages in tabs scroll below their tabs, everything else as a whole.
bool ScrollsItself(const QLayout& body) {
    return body.count() == 1 && qobject_cast<QTabWidget*>(body.itemAt(0)->widget()) != nullptr;
}

void LayOut(CDialog& dialog, const CEditorParts& parts) {
    auto* sides = new QHBoxLayout;
    sides->setSpacing(kSpace);
    if (parts.preview != nullptr)
        sides->addLayout(PreviewColumn(*parts.preview, parts.abovePreview), 1);
    if (parts.left != nullptr)
        sides->addWidget(new CScrollRoom(parts.left));
    if (ScrollsItself(*parts.body))
        sides->addLayout(parts.body);
    else
        sides->addWidget(new CScrollRoom(parts.body));
    auto* all = new QVBoxLayout(&dialog);
    all->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
    all->setSpacing(kSpace);
    all->addLayout(sides, 1);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(2 * kSpace);
    CStrip* strip = parts.edited != nullptr ? new CStrip(dialog) : nullptr;
    if (strip != nullptr)
        foot->addWidget(strip, 1);
    foot->addWidget(dialog.MakeOkCancel());
    all->addLayout(foot);
    OrderTabs(dialog, parts);
    dialog.SetResizable();
}

/// Lets every layout know the sizes of what stands in it, from the inside out. Those of what does not show
/// yet would else keep what they knew at first.
void ActivateLayouts(QWidget& widget) {
    for (QObject* child : widget.children())
        if (auto* inner = qobject_cast<QWidget*>(child))
            ActivateLayouts(*inner);
    if (widget.layout() != nullptr) {
        widget.layout()->invalidate();
        widget.layout()->activate();
    }
}

/// Sizes can be known once all stands in its place and has its style.
void Polish(const QWidget& part) {
    for (const QWidget* widget : part.findChildren<QWidget*>())
        widget->ensurePolished();
}

/// The size of `dialog` with all in it at its natural size, and the preview as the left third.
QSize NaturalSize(CDialog& dialog, const CEditorParts& parts, bool low) {
    ActivateLayouts(dialog);
    for (QWidget* room : dialog.findChildren<QWidget*>())
        if (auto* scrolls = dynamic_cast<CScrollRoom*>(room))
            scrolls->Measure(low);
    ActivateLayouts(dialog);
    const auto sizeOf = [](const auto* item) { return item != nullptr ? item->sizeHint() : QSize(0, 0); };
    const QLayout* sides = dialog.layout()->itemAt(0)->layout();
    QSize editing(0, 0);
    for (int i = parts.preview != nullptr ? 1 : 0; i < sides->count(); ++i) {
        const QSize part = sides->itemAt(i)->sizeHint();
        editing = QSize(editing.width() + part.width() + kSpace, std::max(editing.height(), part.height()));
    }
    const int width = editing.width() + kSpace;
    const QSize below = sizeOf(dialog.layout()->itemAt(1));
    const int foot = below.height() + 3 * kSpace;
    if (parts.preview == nullptr)
        return {std::max(width, below.width() + 2 * kSpace), editing.height() + foot};
    const int besides = width + kSpace;
    const int third = (besides + 1) / 2;
    const int head = parts.abovePreview != nullptr ? sizeOf(parts.abovePreview).height() + kSpace : 0;
    return {besides + third, std::max(editing.height(), head + third * 3 / 4) + foot};
}

} // namespace

void OpenEditor(CDialog& dialog, const CEditorParts& parts) {
    if (dialog.layout() == nullptr) {
        LayOut(dialog, parts);
        new CSizeKeeper(dialog);
    }
    Polish(dialog);
    QSize natural = NaturalSize(dialog, parts, false);
    if (natural.height() > Room(dialog).height())
        natural = NaturalSize(dialog, parts, true);
    for (QObject* child : dialog.children())
        if (auto* keeper = dynamic_cast<CSizeKeeper*>(child))
            keeper->Open(natural);
    if (CStrip* strip = FindStrip(dialog))
        strip->Open({parts.preview, parts.edited, parts.restored});
}

void TakeIn(CScrollRoom& room, const QWidget& tabs) {
    // The new controls are the last that Tab comes to. What came behind the tabs goes behind them.
    QWidget* last = nullptr;
    std::vector<QWidget*> behind;
    const QWidget* window = room.window();
    for (QWidget* next = window->nextInFocusChain(); next != window; next = next->nextInFocusChain()) {
        if (next->focusPolicy() == Qt::NoFocus)
            continue;
        if (room.isAncestorOf(next))
            last = next;
        else if (tabs.isAncestorOf(next))
            behind.clear();
        else
            behind.push_back(next);
    }
    for (QWidget* stop : behind) {
        QWidget::setTabOrder(last, stop);
        last = stop;
    }
    Polish(room);
    ActivateLayouts(room);
    room.MeasureAgain();
    ActivateLayouts(room);
}
