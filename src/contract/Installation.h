#pragma once

namespace vlt::contract {

// Folders below the install directory.

/// The pylons' catalogues, colours, templates of layers and information pages.
inline constexpr char PylonFolder[] = "addons/telecom/pylons";
/// The template of building layers.
inline constexpr char BuildingTemplateFolder[] = "addons/telecom/template";
inline constexpr char ColorMapFolder[] = "addons/telecom/colormaps";
/// The dictionaries of layers; those of the programs lie in "MESSAGES".
inline constexpr char LayerMessageFolder[] = "addons/telecom/MESSAGES";
/// The plug-ins of the geodata and of the scene library.
inline constexpr char PluginFolder[] = "driver";

/// Under which name the geodata library knows the table driver.
inline constexpr char TableDriver[] = "VltTables";

} // namespace vlt::contract
