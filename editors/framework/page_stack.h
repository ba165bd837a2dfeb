#pragma once
// Pages of a dialog of which one shows at a time, in one place. All of them exist from the start.

#include <QStackedWidget>

class CDialog;

class CPageStack : public QStackedWidget {
    Q_OBJECT
public:
    using QStackedWidget::QStackedWidget;
    ~CPageStack() override; ///< lets go of the pages, which are the dialog's

    /// Adds a page at the end.
    void Attach(CDialog& page);
    /// Starts the pages; they show the model's values anew.
    void Start();
};
