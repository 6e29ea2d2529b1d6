#pragma once

#include "wizard/base/BasePage.h"

/// Stands where a page will be that this version does not have yet, and says so. Nothing follows.
class PlannedPage : public BasePage
{
    Q_OBJECT

public:
    /// @param title    of the page
    /// @param purpose  a sentence: what the page will do
    PlannedPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                const QString &language, const QString &title, const QString &purpose);

    void initializePage() override;
    int nextId() const override { return -1; }
};
