#include "platform/widgets/simple_combo.h"

#include <QCryptographicHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmapCache>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

/// A list of a few rows that grows with its place, not with its texts.
class CRows : public QListWidget {
public:
    explicit CRows(QWidget* parent) : QListWidget(parent) {
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setTextElideMode(Qt::ElideRight);
    }
    QSize sizeHint() const override {
        constexpr int kRows = 6;
        return {fontMetrics().averageCharWidth() * 24,
                fontMetrics().lineSpacing() * kRows + 2 * frameWidth()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace

CSimpleCombo::CSimpleCombo(QWidget* parent)
    : QWidget(parent), m_edit(new QLineEdit(this)), m_list(new CRows(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_edit);
    layout->addWidget(m_list);
    setFocusProxy(m_list);
    m_edit->setFocusPolicy(Qt::ClickFocus);
    m_list->installEventFilter(this);
    m_edit->setFocusPolicy(
        Qt::ClickFocus); // the list is the one stop of the Tab key, and finds rows by their text too
    connect(this, &QObject::objectNameChanged, this, [this](const QString& name) {
        m_list->setObjectName(name + QStringLiteral(" list"));
        m_list->setAccessibleName(m_list->objectName());
        m_edit->setObjectName(name + QStringLiteral(" selection"));
        m_edit->setAccessibleName(m_edit->objectName());
    });

    connect(
        m_list, &QListWidget::currentRowChanged, this,
        [this](int row) {
            ShowTextOf(row);
            emit SelectionChanged(row);
        });
    connect(
        m_list, &QListWidget::itemDoubleClicked, this,
        [this](QListWidgetItem* item) { emit DoubleClicked(m_list->row(item)); });
    connect(m_edit, &QLineEdit::textEdited, this, [this] {
        if (Selected() >= 0) {
            const QSignalBlocker quiet(m_list);
            m_list->setCurrentRow(-1);
            emit SelectionChanged(-1);
        }
    });
}

void CSimpleCombo::Clear() {
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    m_edit->clear();
}

int CSimpleCombo::Count() const {
    return m_list->count();
}

void CSimpleCombo::Add(const QString& text) {
    Insert(Count(), text);
}

void CSimpleCombo::Insert(int row, const QString& text) {
    const QSignalBlocker quiet(m_list);
    m_list->insertItem(row, text);
}

void CSimpleCombo::Delete(int row) {
    const QSignalBlocker quiet(m_list);
    delete m_list->takeItem(row);
}

QString CSimpleCombo::Text(int row) const {
    const QListWidgetItem* item = m_list->item(row);
    return item != nullptr ? item->text() : QString();
}

int CSimpleCombo::Selected() const {
    return m_list->currentRow();
}

void CSimpleCombo::Select(int row) {
    const QSignalBlocker quiet(m_list);
    m_list->setCurrentRow(row);
    ShowTextOf(row);
}

/// One for all images of the same pixels: the toolkit keeps what it has painted of each pixmap.
static QPixmap PixmapOf(const QImage& image) {
    const QByteArray bits = QByteArray::fromRawData(reinterpret_cast<const char*>(image.constBits()),
                                                    static_cast<int>(image.sizeInBytes()));
    const QString key =
        QStringLiteral("swatch %1 %2 %3")
            .arg(image.width())
            .arg(image.devicePixelRatio())
            .arg(QString::fromLatin1(QCryptographicHash::hash(bits, QCryptographicHash::Sha1).toHex()));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap::fromImage(image);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

void CSimpleCombo::SetSwatch(int row, const QImage& image) {
    m_list->setIconSize(SwatchSize());
    QListWidgetItem* item = m_list->item(row);
    if (item == nullptr)
        return;
    const QPixmap swatch = PixmapOf(image);
    // A colour is the same in a row that is selected or greyed.
    QIcon icon(swatch);
    icon.addPixmap(swatch, QIcon::Selected);
    icon.addPixmap(swatch, QIcon::Disabled);
    item->setIcon(icon);
}

QSize CSimpleCombo::SwatchSize() const {
    const int height = fontMetrics().ascent();
    return {height * 3 / 2, height};
}

bool CSimpleCombo::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeypadModifier;
    const bool up = key.key() == Qt::Key_Up;
    if (key.key() == Qt::Key_Delete && held == Qt::NoModifier)
        emit DeletePressed();
    else if ((up || key.key() == Qt::Key_Down) && held == Qt::AltModifier)
        emit MovePressed(up ? -1 : 1);
    else
        return false;
    return true;
}

void CSimpleCombo::ShowTextOf(int row) {
    m_edit->setText(Text(row));
}
