#include "Platform/AudioUnits/AUParameterTree.h"

#include "Platform/Core/MainThreadShared.h"

#include <utility>

namespace platform {

AUParameterGroup::AUParameterGroup(QString identifier, QString displayName,
                                   QList<std::shared_ptr<AUParameterNode>> children)
    : AUParameterNode(std::move(identifier), std::move(displayName)), m_children(std::move(children)) {
    for (const auto& child : std::as_const(m_children)) {
        if (const auto parameter = std::dynamic_pointer_cast<AUParameter>(child))
            m_parameters.append(parameter);
        else if (const auto group = std::dynamic_pointer_cast<AUParameterGroup>(child))
            m_parameters.append(group->allParameters());
    }
}

void AUParameterGroup::adoptChildren() {
    for (const auto& child : std::as_const(m_children))
        child->setParent(weak_from_this());
}

AUParameterTree::AUParameterTree(QList<std::shared_ptr<AUParameterNode>> children)
    : AUParameterGroup({}, {}, std::move(children)) {
    for (const auto& parameter : allParameters()) {
        if (!m_byAddress.contains(parameter->address()))
            m_byAddress.insert(parameter->address(), parameter);
        if (!m_byIdentifier.contains(parameter->identifier()))
            m_byIdentifier.insert(parameter->identifier(), parameter);
    }
}

std::shared_ptr<AUParameter> AUParameterTree::createParameter(AUParameterDescription description) {
    return std::make_shared<AUParameter>(std::move(description));
}

std::shared_ptr<AUParameterGroup>
AUParameterTree::createGroup(QString identifier, QString displayName,
                             QList<std::shared_ptr<AUParameterNode>> children) {
    std::shared_ptr<AUParameterGroup> group(
        new AUParameterGroup(std::move(identifier), std::move(displayName), std::move(children)),
        DeleteOnMainThread());
    group->adoptChildren();
    return group;
}

std::shared_ptr<AUParameterTree>
AUParameterTree::createTree(QList<std::shared_ptr<AUParameterNode>> children) {
    std::shared_ptr<AUParameterTree> tree(new AUParameterTree(std::move(children)), DeleteOnMainThread());
    tree->adoptChildren();
    return tree;
}

std::shared_ptr<AUParameter> AUParameterTree::parameterWithAddress(AUParameterAddress address) const {
    return m_byAddress.value(address);
}

std::shared_ptr<AUParameter> AUParameterTree::parameterWithIdentifier(const QString& identifier) const {
    return m_byIdentifier.value(identifier);
}

} // namespace platform
