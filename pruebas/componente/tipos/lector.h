// Reads a type library back as lines of text.
#pragma once

#include "anfitrion/com.h"

#include <oaidl.h>

#include <string>
#include <vector>

namespace tipos {

/// TYPEATTR of a type information, given back at the end.
class Atributos {
  public:
    explicit Atributos(ITypeInfo* info) : info_(info) { info_->GetTypeAttr(&attr_); }
    Atributos(const Atributos&) = delete;
    Atributos& operator=(const Atributos&) = delete;
    ~Atributos() {
        if (attr_)
            info_->ReleaseTypeAttr(attr_);
    }
    const TYPEATTR* operator->() const { return attr_; }

  private:
    anfitrion::Puntero<ITypeInfo> info_;
    TYPEATTR* attr_ = nullptr;
};

/// The other face of a dual interface: its virtual table.
anfitrion::Puntero<ITypeInfo> VistaDeTabla(ITypeInfo* info);

/// Each own function of a virtual table: slot, kind, name, parameters, result, identifier, flags,
/// help string. What is not as automation wants it is said in the line.
std::vector<std::string> LeerTabla(ITypeInfo* tabla);

/// Each function of a dispatch-only interface as "Name(parameters)", in order of its identifiers;
/// an identifier out of order is said in the line.
std::vector<std::string> LeerEventos(ITypeInfo* eventos);

std::wstring NombreDe(ITypeInfo* info, MEMBERID miembro = MEMBERID_NIL);
std::wstring AyudaDe(ITypeInfo* info, MEMBERID miembro = MEMBERID_NIL);

} // namespace tipos
