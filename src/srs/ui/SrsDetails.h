#pragma once

#include "geodata/SrsCatalogue.h"
#include "srs/SrsEntry.h"

#include <QGroupBox>

#include <memory>

namespace Ui {
class SrsDetails;
}

namespace vlt::srs {

/// Shows the details of a coordinate system, including its definition.
class SrsDetails : public QGroupBox
{
    Q_OBJECT

public:
    explicit SrsDetails(QWidget *parent = nullptr);
    ~SrsDetails() override;

    /// @param system  the record in the catalogue; null if there is none
    void describe(const SrsEntry &entry, const geodata::SrsRecord *system);

    /// Shows no system.
    void clear();

private:
    std::unique_ptr<Ui::SrsDetails> m_ui;
};

} // namespace vlt::srs
