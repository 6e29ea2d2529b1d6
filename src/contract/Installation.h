#pragma once

namespace vlt::contract {

// Folders below the install directory.

/// Catalogues and colours of pylons, templates of layers and information pages.
inline constexpr char PylonFolder[] = "addons/telecom/pylons";
/// The template of building layers.
inline constexpr char BuildingTemplateFolder[] = "addons/telecom/template";
inline constexpr char ColorMapFolder[] = "addons/telecom/colormaps";
/// The dictionaries of layers; those of the programs lie in "MESSAGES".
inline constexpr char LayerMessageFolder[] = "addons/telecom/MESSAGES";
/// The plug-ins of the geodata library and of the scene library.
inline constexpr char PluginFolder[] = "driver";

/// Name of the table driver in the geodata library.
inline constexpr char TableDriver[] = "VltTables";

} // namespace vlt::contract
