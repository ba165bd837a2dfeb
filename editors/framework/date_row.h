#pragma once
// The row of a day: an edit with a calendar.

#include "editors/framework/form_rows.h"

#include <QDate>

class QDateEdit;

/// The value may be no date at all: the control then shows the day that it showed before, today at first, and
/// the model keeps what it has until a day is chosen. A text that is no date changes nothing either.
class CDateRow : public CValueRow<CDateRow, QDate> {
public:
    CDateRow(CForm& form, CBinding<QDate> field);

    QWidget* Control() const override;
    bool Exchange(bool read) override;

protected:
    QString Shown(const QDate& day) const override { return day.toString(QStringLiteral("yyyy/MM/dd")); }

private:
    QDateEdit* m_edit;
};
