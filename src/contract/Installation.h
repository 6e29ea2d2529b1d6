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
/// What the readers of tables need.
inline constexpr char TableFolder[] = "addons/telecom/tables";
/// The words of column names, in TableFolder; a user's own are in UserTableFolder.
inline constexpr char VocabularyFile[] = "vocabulary.json";
/// Below the user's folder of data.
inline constexpr char UserTableFolder[] = "veltaro/telecom";
/// The plug-ins of the geodata library and of the scene library.
inline constexpr char PluginFolder[] = "driver";

/// Name of the table driver in the geodata library.
inline constexpr char TableDriver[] = "VltTables";

} // namespace vlt::contract
