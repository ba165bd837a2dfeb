#pragma once
// Pages of a dialog of which one shows at a time, in one place.

#include "platform/widgets/dialog.h"

#include <QStackedWidget>
#include <functional>
#include <memory>
#include <vector>

class CPageStack : public QStackedWidget {
    Q_OBJECT
public:
    using Make = std::function<std::unique_ptr<CDialog>()>;

    using QStackedWidget::QStackedWidget;
    ~CPageStack() override; ///< lets go of the pages that are the dialog's

    /// Adds a page at the end, which is the dialog's.
    void Attach(CDialog& page);
    /// Adds a page at the end that Complete makes; the stack's.
    void Attach(Make make);
    /// Starts the pages that there are; they show the model's values anew.
    void Start();
    bool IsComplete() const { return m_toMake.empty(); }
    /// Makes and starts the pages that are still to be made.
    void Complete();
    /// Destroys the pages that it has made, while the dialog around them is still whole.
    void Clear() { m_made.clear(); }
    /// The natural size until then.
    void Expect(QSize size) { m_expected = size; }
    /// Shows the page of that index, once it is made.
    void Choose(int index);

    QSize sizeHint() const override;

private:
    std::vector<Make> m_toMake;
    std::vector<std::unique_ptr<CDialog>> m_made;
    QSize m_expected;
    int m_chosen = 0;
};
