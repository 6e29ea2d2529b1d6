#pragma once

class QObject;

namespace vlt::wizard {

/// Draws the text of lists that are too narrow for it with an ellipsis. The toolkit cuts such texts
/// without a sign.
///
/// @param owner  owns the filter; must live as long as the application
void elideCombos(QObject *owner);

} // namespace vlt::wizard
