#pragma once

#include "geodata/SrsCatalogue.h"
#include "srs/SrsEntry.h"

#include <QGroupBox>

#include <memory>

namespace Ui {
class SrsDetails;
}

namespace vlt::srs {

/// Tells what is known of one coordinate system, down to its definition.
class SrsDetails : public QGroupBox
{
    Q_OBJECT

public:
    explicit SrsDetails(QWidget *parent = nullptr);
    ~SrsDetails() override;

    /// @param system  what the catalogue knows of it; null where that is nothing
    void describe(const SrsEntry &entry, const geodata::SrsRecord *system);

    /// Shows nothing.
    void clear();

private:
    std::unique_ptr<Ui::SrsDetails> m_ui;
};

} // namespace vlt::srs
