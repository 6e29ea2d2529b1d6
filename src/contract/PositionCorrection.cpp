#include "contract/PositionCorrection.h"

#include "contract/MappingJson.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vlt::contract {

namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

constexpr std::array<std::string_view, 7> ChangeNames = {"swap",   "negateX", "negateY", "negate",
                                                         "scaleX", "scaleY",  "scale"};
constexpr char Change[] = "cure";
constexpr char Factor[] = "factor";
constexpr char Rows[] = "rows";
constexpr char RowNumber[] = "row";
constexpr char X[] = "x";
constexpr char Y[] = "y";

bool hasFactor(PositionChange change)
{
    return change >= PositionChange::ScaleX;
}

PositionChange changeOf(const Json &value, const std::string &place)
{
    const auto found = std::find(ChangeNames.begin(), ChangeNames.end(), textOf(value, place));
    if (found == ChangeNames.end())
        refuseValue(place);
    return static_cast<PositionChange>(found - ChangeNames.begin());
}

double factorOf(const Json &value, const std::string &place)
{
    const double factor = value.is_number() ? value.get<double>() : 0;
    if (factor == 0 || !std::isfinite(factor))
        refuseValue(place);
    return factor;
}

CorrectedRow rowOf(const Json &value, const std::string &place)
{
    if (!value.is_object())
        refuseValue(place);
    CorrectedRow row;
    for (const auto &[key, member] : value.items()) {
        if (key == X)
            row.x = textOf(member, place);
        else if (key == Y)
            row.y = textOf(member, place);
        else if (key == RowNumber && member.is_number_integer())
            row.row = member.get<std::int64_t>();
        else
            refuseValue(place);
    }
    if (row.row < 1)
        refuseValue(place);
    return row;
}

PositionCorrection correctionOf(const Json &value, const std::string &place)
{
    if (!value.is_object() || !value.contains(Change))
        refuseValue(place);
    PositionCorrection correction;
    correction.change = changeOf(value[Change], place + '.' + Change);
    for (const auto &[key, member] : value.items()) {
        std::string where = place;
        where.append(".").append(key);
        if (key == Factor && hasFactor(correction.change))
            correction.factor = factorOf(member, where);
        else if (key == Rows && member.is_array() && !member.empty())
            for (const Json &row : member)
                correction.rows.push_back(rowOf(row, where));
        else if (key != Change)
            refuseValue(where);
    }
    if (hasFactor(correction.change) && !value.contains(Factor))
        refuseValue(place + '.' + Factor);
    return correction;
}

bool areTooMany(const std::vector<PositionCorrection> &corrections)
{
    std::size_t rows = 0;
    for (const PositionCorrection &correction : corrections)
        rows += correction.rows.size();
    return corrections.size() > MaxCorrections || rows > MaxCorrectedRows;
}

} // namespace

std::string_view changeName(PositionChange change)
{
    return ChangeNames.at(static_cast<std::size_t>(change));
}

std::vector<PositionCorrection> correctionsOf(const Json &value, const std::string &place)
{
    if (!value.is_array())
        refuseValue(place);
    std::vector<PositionCorrection> corrections;
    for (const Json &correction : value)
        corrections.push_back(correctionOf(correction, place));
    if (areTooMany(corrections))
        refuseValue(place);
    return corrections;
}

OrderedJson headOf(const PositionCorrection &correction)
{
    OrderedJson json = {{Change, changeName(correction.change)}};
    if (hasFactor(correction.change))
        json[Factor] = correction.factor;
    return json;
}

OrderedJson jsonOf(const CorrectedRow &row)
{
    OrderedJson json = {{RowNumber, row.row}, {X, row.x}};
    if (!row.y.empty())
        json[Y] = row.y;
    return json;
}

std::string writeCorrections(const std::vector<PositionCorrection> &corrections)
{
    OrderedJson list = OrderedJson::array();
    for (const PositionCorrection &correction : corrections) {
        OrderedJson json = headOf(correction);
        for (const CorrectedRow &row : correction.rows)
            json[Rows].push_back(jsonOf(row));
        list.push_back(std::move(json));
    }
    return dumped(list);
}

std::vector<PositionCorrection> readCorrections(std::string_view text)
{
    try {
        return correctionsOf(Json::parse(text), "corrections");
    } catch (const UnusableMapping &) {
        return {};
    } catch (const Json::exception &) {
        return {};
    }
}

bool addCorrections(std::vector<PositionCorrection> &stated,
                    const std::vector<PositionCorrection> &added)
{
    std::vector<PositionCorrection> all = stated;
    all.insert(all.end(), added.begin(), added.end());
    if (areTooMany(all))
        return false;
    stated = std::move(all);
    return true;
}

} // namespace vlt::contract
