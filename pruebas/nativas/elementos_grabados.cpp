#include "pruebas/nativas/elementos_grabados.h"

#include "pruebas/nativas/entorno_grabador.h"

namespace pincela::pruebas {

namespace {

std::string NombreDe(const Fuente& fuente) {
    return fuente ? Describir(fuente->Atributos().Name) : "ninguna";
}

std::int32_t NoNegativo(std::int32_t valor) {
    if (valor < 0)
        Lanzar(NumeroError::ValorDePropiedad);
    return valor;
}

} // namespace

std::string NombreDe(const Imagen& imagen) {
    const auto grabada = std::dynamic_pointer_cast<ImagenGrabada>(imagen);
    return grabada ? grabada->nombre : "ninguna";
}

Grabado::Grabado(EntornoGrabador& entorno, std::string quien)
    : nombre(std::move(quien)), entorno_(entorno) {
    entorno_.Conocer(*this);
}

Grabado::~Grabado() {
    entorno_.Desconocer(*this);
}

void Grabado::Anotar(const std::string& que) const {
    entorno_.registro.Anotar(nombre + "." + que);
}

void SuperficieGrabada::PonBackStyle(std::int16_t estilo) {
    estilo_ = estilo;
    Anotar("BackStyle " + Numero(estilo));
}

void SuperficieGrabada::PonMousePointer(std::int16_t puntero) {
    puntero_ = puntero;
    Anotar("MousePointer " + Numero(puntero));
}

void SuperficieGrabada::PonMouseIcon(const Imagen& icono) {
    icono_ = icono;
    Anotar("MouseIcon " + NombreDe(icono));
}

void SuperficieGrabada::PonAccessKeys(const Texto& teclas) {
    teclas_ = teclas;
    Anotar("AccessKeys " + Describir(teclas));
}

void SuperficieGrabada::Refresh() {
    Anotar("Refresh");
    if (alRefrescar)
        alRefrescar();
}

void SuperficieGrabada::SetFocus() {
    Anotar("SetFocus");
    entorno_.Enfocar(nullptr);
    if (alEnfocar)
        alEnfocar();
}

void CuadroGrabado::Move(float izquierda, float arriba, float an, float al) {
    ancho = an;
    alto = al;
    Anotar("Move " + Caja(izquierda, arriba, an, al));
}

void CuadroGrabado::PonPicture(const Imagen& valor) {
    imagen = valor;
    Anotar("Picture " + NombreDe(valor));
}

void EtiquetaGrabada::PonCaption(const Texto& texto) {
    texto_ = texto;
    Anotar("Caption " + Describir(texto));
}

void EtiquetaGrabada::PonFont(const Fuente& fuente) {
    fuente_ = fuente;
    Anotar("Font " + NombreDe(fuente));
}

void EtiquetaGrabada::PonForeColor(Color color) {
    color_ = color;
    Anotar("ForeColor " + Describir(color));
}

void EtiquetaGrabada::PonEnabled(bool valor) {
    activa_ = valor;
    Anotar("Enabled " + Describir(valor));
}

void EtiquetaGrabada::PonToolTipText(const Texto& texto) {
    ayuda_ = texto;
    Anotar("ToolTipText " + Describir(texto));
}

float EtiquetaGrabada::Width() const {
    const auto marcas = std::count(texto_.begin(), texto_.end(), u'&');
    return entorno_.anchoLetra * static_cast<float>(std::ssize(texto_) - marcas);
}

float EtiquetaGrabada::Height() const {
    return entorno_.altoLetra;
}

void EtiquetaGrabada::Move(float izquierda, float arriba) {
    izquierda_ = izquierda;
    arriba_ = arriba;
    Anotar("Move " + Punto(izquierda, arriba));
}

void TemporizadorGrabado::PonInterval(std::int32_t milisegundos) {
    intervalo_ = milisegundos;
    Anotar("Interval " + Numero(milisegundos));
}

void TemporizadorGrabado::PonEnabled(bool valor) {
    activo_ = valor;
    Anotar("Enabled " + Describir(valor));
}

bool TemporizadorGrabado::Tic() {
    if (!activo_ || intervalo_ == 0)
        return false;
    // On a copy: the control may go away while it runs.
    if (std::function<void()> accion = accion_)
        accion();
    return true;
}

void RectanguloGrabado::Move(float izquierda, float arriba, float ancho, float alto) {
    Anotar("Move " + Caja(izquierda, arriba, ancho, alto));
}

void RectanguloGrabado::PonVisible(bool valor) {
    visible_ = valor;
    Anotar("Visible " + Describir(valor));
}

void RectanguloGrabado::PonBorde(Borde borde) {
    static constexpr const char* nombres[] = {"Ninguno", "Continuo", "Punteado"};
    Anotar(std::string("Borde ") + nombres[static_cast<int>(borde)]);
}

void RectanguloGrabado::PonBorderColor(Color color) {
    Anotar("BorderColor " + Describir(color));
}

void RectanguloGrabado::PonFillColor(Color color) {
    Anotar("FillColor " + Describir(color));
}

void RectanguloGrabado::PonElipse(std::int32_t ancho, std::int32_t alto) {
    Anotar("Elipse " + Numero(ancho) + "x" + Numero(alto));
}

void LineaGrabada::Move(float x1, float y1, float x2, float y2) {
    Anotar("Move " + Punto(x1, y1) + " " + Punto(x2, y2));
}

void LineaGrabada::PonVisible(bool valor) {
    visible_ = valor;
    Anotar("Visible " + Describir(valor));
}

void LineaGrabada::PonBorderColor(Color color) {
    color_ = color;
    Anotar("BorderColor " + Describir(color));
}

void LineaGrabada::PonBorderWidth(std::int32_t ancho) {
    Anotar("BorderWidth " + Numero(ancho));
}

void CajaGrabada::PonText(const Texto& texto) {
    const bool cambia = texto != texto_;
    texto_ = texto;
    Anotar("Text " + Describir(texto));
    if (cambia && oyente)
        oyente->Change();
}

void CajaGrabada::PonSelStart(std::int32_t inicio) {
    inicio_ = NoNegativo(inicio);
    largo_ = 0;
    Anotar("SelStart " + Numero(inicio));
}

void CajaGrabada::PonSelLength(std::int32_t largo) {
    largo_ = NoNegativo(largo);
    Anotar("SelLength " + Numero(largo));
}

Texto CajaGrabada::SelText() const {
    return texto_.substr(static_cast<std::size_t>(SelStart()),
                         static_cast<std::size_t>(SelLength()));
}

void CajaGrabada::PonMaxLength(std::int32_t largo) {
    maximo_ = largo;
    Anotar("MaxLength " + Numero(largo));
}

void CajaGrabada::PonAlignment(std::int32_t alineacion) {
    alineacion_ = alineacion;
    Anotar("Alignment " + Numero(alineacion));
}

void CajaGrabada::PonAppearance(std::int32_t apariencia) {
    apariencia_ = apariencia;
    Anotar("Appearance " + Numero(apariencia));
}

void CajaGrabada::PonLocked(bool valor) {
    trancada_ = valor;
    Anotar("Locked " + Describir(valor));
}

void CajaGrabada::PonEnabled(bool valor) {
    activa_ = valor;
    Anotar("Enabled " + Describir(valor));
}

void CajaGrabada::PonFont(const Fuente& fuente) {
    fuente_ = fuente;
    Anotar("Font " + NombreDe(fuente));
}

void CajaGrabada::PonForeColor(Color color) {
    letra_ = color;
    Anotar("ForeColor " + Describir(color));
}

void CajaGrabada::PonBackColor(Color color) {
    fondo_ = color;
    Anotar("BackColor " + Describir(color));
}

void CajaGrabada::PonToolTipText(const Texto& texto) {
    ayuda_ = texto;
    Anotar("ToolTipText " + Describir(texto));
}

void CajaGrabada::PonNombreAccesible(const Texto& texto) {
    Anotar("NombreAccesible " + Describir(texto));
}

void CajaGrabada::Move(float izquierda, float arriba, float ancho, float alto) {
    Anotar("Move " + Caja(izquierda, arriba, ancho, alto));
}

void CajaGrabada::SetFocus() {
    Anotar("SetFocus");
    entorno_.Enfocar(this);
}

bool CajaGrabada::EsActivo() const {
    return entorno_.Enfocada() == this;
}

void CajaGrabada::Teclear(std::int16_t caracter) {
    if (oyente)
        oyente->KeyPress(caracter);
    if (caracter == 0 || trancada_ || !activa_)
        return;
    Texto nuevo = texto_;
    const auto donde = static_cast<std::size_t>(SelStart());
    if (caracter == 8) { // backspace
        if (SelLength() > 0)
            nuevo.erase(donde, static_cast<std::size_t>(SelLength()));
        else if (donde > 0)
            nuevo.erase(donde - 1, 1);
    } else if (caracter >= 32) {
        nuevo.replace(donde, static_cast<std::size_t>(SelLength()), 1,
                      static_cast<char16_t>(caracter));
    }
    if (nuevo == texto_ || (maximo_ > 0 && std::ssize(nuevo) > maximo_))
        return;
    if (oyente && !oyente->PideEditar())
        return;
    inicio_ = static_cast<std::int32_t>(donde) + (caracter == 8 ? (donde > 0 ? -1 : 0) : 1);
    largo_ = 0;
    texto_ = std::move(nuevo);
    if (oyente)
        oyente->Change();
}

std::int32_t CajaGrabada::Dentro(std::int64_t posicion) const {
    return static_cast<std::int32_t>(std::min<std::int64_t>(posicion, std::ssize(texto_)));
}

} // namespace pincela::pruebas
