#include "Platform/AudioUnits/AUParameterTree.h"

#include "Platform/Core/MainThreadShared.h"

#include <utility>

namespace platform {

AUParameterTree::AUParameterTree(QList<std::shared_ptr<AUParameter>> parameters)
    : m_parameters(std::move(parameters)) {
    for (const auto& parameter : std::as_const(m_parameters))
        if (!m_byAddress.contains(parameter->address()))
            m_byAddress.insert(parameter->address(), parameter);
}

std::shared_ptr<AUParameter> AUParameterTree::createParameter(AUParameterDescription description) {
    return std::make_shared<AUParameter>(std::move(description));
}

std::shared_ptr<AUParameterTree> AUParameterTree::createTree(QList<std::shared_ptr<AUParameter>> parameters) {
    std::shared_ptr<AUParameterTree> tree(new AUParameterTree(std::move(parameters)), DeleteOnMainThread());
    for (const auto& parameter : tree->allParameters())
        parameter->setTree(tree);
    return tree;
}

std::shared_ptr<AUParameter> AUParameterTree::parameterWithAddress(AUParameterAddress address) const {
    return m_byAddress.value(address);
}

} // namespace platform
