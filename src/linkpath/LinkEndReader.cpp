#include "linkpath/LinkEndReader.h"

#include "contract/LinkEnds.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace vlt::linkpath {

namespace {

bool isGiven(const OGRFeature &feature, int field)
{
    return field >= 0 && feature.IsFieldSetAndNotNull(field);
}

std::string textAt(const OGRFeature &feature, int field)
{
    return isGiven(feature, field) ? feature.GetFieldAsString(field) : std::string();
}

std::optional<double> numberAt(const OGRFeature &feature, int field)
{
    return isGiven(feature, field) ? std::optional(feature.GetFieldAsDouble(field)) : std::nullopt;
}

} // namespace

LinkEndReader::LinkEndReader(const OGRFeatureDefn &ends, int siteField)
    : m_site(siteField)
    , m_row(ends.GetFieldIndex(contract::LinkRowField))
    , m_end(ends.GetFieldIndex(contract::LinkEndField))
    , m_name(ends.GetFieldIndex(contract::LinkSectorField))
    , m_height(ends.GetFieldIndex(contract::LinkHeightField))
    , m_frequency(ends.GetFieldIndex(contract::LinkFrequencyField))
    , m_length(ends.GetFieldIndex(contract::LinkLengthField))
{}

std::array<int, 7> LinkEndReader::fields() const
{
    return {m_site, m_row, m_end, m_name, m_height, m_frequency, m_length};
}

PairedLink::End LinkEndReader::endOf(const OGRFeature &feature) const
{
    PairedLink::End end;
    end.site = textAt(feature, m_site);
    end.frequencyMHz = numberAt(feature, m_frequency);
    end.place.heightM = numberAt(feature, m_height);
    const OGRGeometry *geometry = feature.GetGeometryRef();
    if (!geometry || geometry->IsEmpty() || wkbFlatten(geometry->getGeometryType()) != wkbPoint)
        return end;
    end.place.x = geometry->toPoint()->getX();
    end.place.y = geometry->toPoint()->getY();
    end.isPlaced = std::isfinite(end.place.x) && std::isfinite(end.place.y);
    return end;
}

std::optional<PairedLink> LinkEndReader::add(const OGRFeature &feature)
{
    const std::int64_t row = feature.GetFieldAsInteger64(m_row);
    const bool isB = textAt(feature, m_end) == contract::EndB;
    std::optional<PairedLink> finished;
    if (!isB || !m_link || m_link->row != row) {
        finished = finish();
        m_link.emplace();
        m_link->row = row;
        m_link->name = textAt(feature, m_name);
        m_link->lengthM = numberAt(feature, m_length);
    }
    m_link->ends[isB ? 1 : 0] = endOf(feature);
    return finished;
}

std::optional<PairedLink> LinkEndReader::finish()
{
    return std::exchange(m_link, std::nullopt);
}

} // namespace vlt::linkpath
