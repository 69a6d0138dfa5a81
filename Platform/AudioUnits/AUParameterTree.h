#pragma once

#include "Platform/AudioUnits/AUParameter.h"

#include <QHash>
#include <QList>

#include <memory>

namespace platform {

/// All parameters of an audio unit. What it holds does not change, so any thread may look something up.
class AUParameterTree : public AUParameterNode {
public:
    static std::shared_ptr<AUParameter> createParameter(AUParameterDescription description);

    /// Takes its parameters out of the tree that they were in. Main thread.
    static std::shared_ptr<AUParameterTree> createTree(QList<std::shared_ptr<AUParameter>> parameters);

    /// In the order in which they were given.
    const QList<std::shared_ptr<AUParameter>>& allParameters() const { return m_parameters; }

    /// The first in their order; null if there is none.
    std::shared_ptr<AUParameter> parameterWithAddress(AUParameterAddress address) const;

private:
    explicit AUParameterTree(QList<std::shared_ptr<AUParameter>> parameters);

    QList<std::shared_ptr<AUParameter>> m_parameters;
    QHash<AUParameterAddress, std::shared_ptr<AUParameter>> m_byAddress;
};

} // namespace platform
