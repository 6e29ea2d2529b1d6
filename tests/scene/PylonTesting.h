#pragma once

#include "QueryTesting.h"

#include "plugins/scene/parametric/PylonQuery.h"

/// Helpers for the tests of pylons.
namespace pylontest {

using namespace querytest;
using namespace vlt::scene;

inline const std::string Demonstration =
    "inline://parametric/query?object=pylon&data_folder=/opt/R&D/addons/telecom/pylons"
    "&pylon_type=monopole_panel&pylon=0 0 0 25 2.5 200 20 2&transmitter=23 0 0 0 0 ff000080"
    "&transmitter=23 120 0 0 0 00ff00ff&transmitter=23 240 -5 0 0 ff000080"
    "&transmitter=20 20 0 0 0 00ff00ff&transmitter=20 140 +5 0 0 ff000080"
    "&transmitter=20 260 0 0 0 00ff00ff&transmitter_scale=100&lod=10000 1000.inlinepylonurl";

/// The pylon of that query with another type.
inline PylonDesign demonstration(const char *type)
{
    return parsePylonQuery(replaced(Demonstration, "monopole_panel", type)).design;
}

/// Adds a row for each type.
inline void addTypes()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : {"monopole_panel", "monopole_cylinder", "monopole_slim",
                             "lattice_panel", "lattice_cylinder", "guyed_panel", "rooftop_panel",
                             "rooftop_cylinder", "wood_panel", "watertower_panel"})
        QTest::newRow(type) << QByteArray(type);
}

} // namespace pylontest
