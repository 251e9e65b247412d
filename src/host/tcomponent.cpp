#include "tcomponent.h"

namespace {
thread_local int designTimeDepth = 0;
}

DesignTimeCreation::DesignTimeCreation() { ++designTimeDepth; }
DesignTimeCreation::~DesignTimeCreation() { --designTimeDepth; }
bool DesignTimeCreation::Active() { return designTimeDepth > 0; }

TComponent::TComponent(QObject *owner) : QObject(owner), FDesigning(DesignTimeCreation::Active()) {}
