#include "LayoutMgmt.h"

CZOrderManager::~CZOrderManager() = default;

void CZOrderManager::UpdateZOrder() {}
