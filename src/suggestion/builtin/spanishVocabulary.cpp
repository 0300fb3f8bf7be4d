// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/Vocabulary.h"

namespace Varlo {

using namespace Qt::StringLiterals;

const Vocabulary &spanishVocabulary()
{
    using enum Label;
    using enum DocumentType;
    static const Vocabulary words {
        FilenameLanguage::Spanish,
        u"Foto"_s,
        u"el|los|las|del|y|por|para|con|una|un|que|se|su|sus|al|lo|como|es|son|ha|han|este|esta|le|nos|sin|más|desde"
        u"|hasta|sobre|fecha|importe|iva|nif|cif|estimado|estimada|calle|días|año|gracias"_s,
        { u"enero|ene"_s, u"febrero|feb"_s, u"marzo|mar"_s, u"abril|abr"_s, u"mayo|may"_s, u"junio|jun"_s,
            u"julio|jul"_s, u"agosto|ago"_s, u"septiembre|setiembre|sept|sep"_s, u"octubre|oct"_s, u"noviembre|nov"_s,
            u"diciembre|dic"_s },
        u"de|del|la|las|el|los|y|e|para|en|i"_s,
        u"el|la|los|las|un|una|este|esta|estos|estas|en|por|para|con|le|les|nos|se|su|sus|usted|ustedes|al|a|de|desde"
        u"|hasta|cuando|como|si|según|durante|tras|entre|sobre|hay|es|son|hoy|ayer|yo|nosotros|os|mediante|que|adjunto"
        u"|adjuntamos|rogamos|gracias|reciba|estimado|estimada|querido|querida|cada|todos|todo|aunque|mientras|desde"
        u"|antes|después|muchos|muchas|qué|quién|tritura"_s,
        u"calle|c/|cl|avenida|avda|av|plaza|pza|paseo|pº|camino|carretera|ctra|ronda|travesía|polígono|pol|urbanización"
        u"|urb|glorieta|callejón|cuesta|rambla|carrer|muelle|blvd|calzada|apdo|apartado"_s,
        u"ayuntamiento|asociación|fundación|universidad|instituto|colegio|ceip|ies|clínica|hospital|banco|caja|mutua"
        u"|ministerio|consejería|diputación|comunidad|cooperativa|sociedad|restaurante|mesón|bar|hotel|farmacia|taller"
        u"|talleres|panadería|ferretería|librería|supermercados|supermercado|agencia|gestoría|notaría|juzgado"
        u"|centro|escuela|museo|cafetería|construcciones|comercial|seguros|escuela|academia|peluquería|óptica"_s,
        u"y|e|otra|otro"_s,
        u"lunes|lun|martes|miércoles|mié|jueves|jue|viernes|vie|sábado|sáb|domingo|dom"_s,
        u"servicio|departamento|concejalía|sección|facultad|área|unidad|negociado|delegación|horario|abierto|cerrado"_s,
        u"domicilio|domiciliada|domiciliado|residencia|vecino|vecina|sede|dni|nif|cif|nie|inscrita"_s,
        {
            { DocumentDate,
                u"fecha de emisión|fecha de factura|fecha factura|fecha de expedición|fecha expedición|fecha emisión"
                u"|fecha del extracto|fecha extracto|fecha de la factura|fecha del documento|fecha de alta|fecha de "
                u"compra|fecha de publicación|publicado|publicado el|fecha del presupuesto|fecha presupuesto|expedido"
                u"|expedido en|emitido|emitida|emitido el|fecha de la carta|fecha de firma|firmado en|firmado el|fecha "
                u"del contrato|fecha de notificación|fecha de la reunión|fecha de celebración|fecha del informe|fecha "
                u"de informe|fecha de reserva|fecha de la reserva|fecha de operación|fecha y hora|fecha hora|siendo "
                u"las|celebrada el|celebrada en|celebrado en|celebrado el|día:|fecha de la compra|fecha del "
                u"pedido|fecha de pedido|fecha de "
                u"certificación|fecha de timbrado|dado en|fecha de la oferta|fecha de oferta|fecha de liquidación"
                u"|fecha del acta|fecha de inspección|fecha de entrega del informe|fecha de consulta|lugar y fecha"
                u"|fecha de la liquidación|fecha de expedicion del certificado|reservado el|comprado el"_s },
            { PlainDate, u"fecha|a fecha de|con fecha"_s },
            { LesserDate,
                u"fecha de efecto|fecha efecto|fecha de inicio|fecha de pago|entrada en vigor|fecha de abono|fecha "
                u"de cobro|última actualización|actualizado|fecha de valor|a partir del|con efectos de|con efectos "
                u"desde|pagado el"_s },
            { OtherDate,
                u"vencimiento|fecha de vencimiento|fecha vencimiento|fecha límite|fecha límite de pago|vence|vence el"
                u"|fecha de nacimiento|nacido|nacida|nacido el|nacida el|f nacimiento|fecha nacimiento|fecha de "
                u"entrega|entrega|fecha entrega|entrega prevista|fecha de cargo|válido hasta|válida "
                u"hasta|validez|fecha "
                u"de validez|caducidad|periodo|período|periodo de facturación|periodo de consumo|periodo de "
                u"liquidación|período de facturación|período de liquidación|fecha de ingreso|fecha de antigüedad"
                u"|antigüedad|próxima reunión|salida|llegada|entrada|fecha de entrada|fecha de salida|hasta|hasta "
                u"el|antes del|acta anterior|se retirará el|cita|próxima cita|del periodo|fecha de fin|desde|desde el"
                u"|fecha de envío|ida|vuelta|próxima revisión|plazo|no más tarde del|fecha de viaje|fecha de caducidad"
                u"|lectura anterior|lectura actual|su escrito de|vigencia|pagar antes del|pago antes del|fin"_s },
            { Total,
                u"total|total factura|total a pagar|importe total|total importe factura|total importe|total con iva"
                u"|total iva incluido|importe a pagar|total eur|total euros|total presupuesto|total recibo|precio"
                u"|precio total|a pagar|total a abonar|total general|total mxn|importe total de la factura|total neto "
                u"a pagar|monto total|total pagado|cuota a ingresar|total cuota|total a ingresar|total ticket|total "
                u"compra|importe|total iva inc|total con impuestos|total impuestos incluidos|importe factura|total "
                u"venta|cuota líquida|deuda total|importe a ingresar|total deuda|total pedido|pagado"_s },
            { FinalBalance,
                u"saldo final|saldo actual|nuevo saldo|saldo a fecha|saldo disponible|saldo al cierre|saldo al"_s },
            { NetPay,
                u"líquido a percibir|líquido total a percibir|total líquido|neto a percibir|total neto|neto a pagar"
                u"|total a percibir|importe neto|salario neto|sueldo neto|líquido"_s },
            { OtherAmount,
                u"subtotal|base imponible|total base imponible|base|iva|total iva|cuota iva|cuota|suma|suma y sigue"
                u"|efectivo|entregado|cambio|su cambio|descuento|total descuento|saldo anterior|saldo inicial|total "
                u"devengado|total devengos|total a deducir|total deducciones|irpf|retención|gastos de envío|portes"
                u"|importe base|total sin iva|total bruto|bruto|tarjeta|tarjeta bancaria|precio unitario|total neto "
                u"factura|fianza|anticipo|señal|propina|capital asegurado|total abonos|total cargos|total unidades"
                u"|total ingresos|total gastos|isr|impuestos|total impuestos|salario base|franquicia|cuota recargo"
                u"|total retenciones|ieps|recargo|a cuenta|ha ahorrado|ahorro"_s },
            { Seller,
                u"emisor|proveedor|vendedor|vendido por|emitido por|empresa|de:|remitente|expedido por|prestador"
                u"|razón social emisor|beneficiario|datos del emisor|gracias por comprar en|establecimiento|comercio"
                u"|datos del vendedor|acreedor"_s },
            { Buyer,
                u"cliente|recibido de|recibí de|he recibido de|datos del cliente|receptor|comprador|facturar "
                u"a|destinatario|para:|a:|titular"
                u"|facturado a|factura a|nombre del "
                u"cliente|paciente|pasajero|viajero|huésped|trabajador|adquirente"
                u"|obligado tributario|contribuyente|dirigido a|a nombre de|razón social cliente|alumno|sr cliente"_s },
            { Attention, u"a la atención de|att|atn"_s },
            { PayingDepartment,
                u"cuentas a pagar|departamento de compras|departamento de contabilidad|administración y compras"_s },
            { ActingFor,
                u"en nombre y representación de|en representación de|representación de|en nombre de|actuando en "
                u"nombre de"_s },
            { PartyOne,
                u"arrendador|arrendadora|empleador|empleadora|empresa:|vendedor:|vendedora:|prestamista|asegurador"
                u"|aseguradora|poderdante|licenciante|parte a|contratante:|parte vendedora|parte arrendadora"_s },
            { PartyTwo,
                u"arrendatario|arrendataria|trabajador|trabajadora|empleado|empleada|comprador:|compradora:|prestatario"
                u"|prestataria|tomador|tomador del seguro|asegurado|apoderado|inquilino|parte b|parte compradora|parte "
                u"arrendataria|licenciatario|contratista:|contratado:"_s },
            { Label::Parties, u"entre|de una parte|reunidos|comparecen|de un lado|por una parte"_s },
            { Subject, u"asunto|ref:|referente a|título:|en relación con:"_s },
            { Author, u"autor|autora|por:|redactado por|autores"_s },
            { Salutation,
                u"estimado|estimada|estimados|estimadas|muy señor|muy señores|querido|querida|queridos|queridas|hola"
                u"|apreciado|apreciada|distinguido|muy sr|muy sres"_s },
            { Closing,
                u"atentamente|un cordial saludo|saludos cordiales|cordialmente|le saluda atentamente|un saludo|saludos"
                u"|reciba un cordial saludo|muy atentamente|les saluda atentamente|reciban un cordial saludo|un abrazo"
                u"|sin otro particular"_s },
            { Field,
                u"tel|teléfono|tlf|tfno|fax|correo|correo "
                u"electrónico|e-mail|email|web|cif|nif|dni|rfc|nie|iban|swift|bic"
                u"|factura n|factura no|factura núm|nº factura|no factura|número de factura|factura número|folio"
                u"|referencia|ref|su referencia|nuestra referencia|expediente|nº expediente|nº cliente|nº de cliente"
                u"|número de cliente|nº de contrato|número de contrato|contrato nº|nº pedido|pedido|nº póliza|número "
                u"de póliza|póliza nº|localizador|descripción|concepto|cantidad|cant|uds|unidades|mesa|camarero|caja:"
                u"|tienda|sucursal|ticket|registro de salida|servicio de|departamento de|departamento|dpto|concejalía"
                u"|consejería|delegación|negociado|sección|asistentes|orden del día|lugar|hora|versión|resumen"
                u"|introducción|índice|ingredientes|preparación|elaboración|raciones|datos personales|experiencia"
                u"|formación|idiomas|nombre|apellidos|domicilio|dirección|dirección de suministro|domicilio social"
                u"|autónomo|régimen fiscal|forma de pago|exponen|cláusulas|estipulan|manifiestan|motivo de ingreso"
                u"|diagnóstico|historia clínica|nº historia|categoría|grupo de cotización|nº afiliación|presidente"
                u"|secretario|adjunto:|anexo|horario|datos de la factura|inscrita en|registro mercantil|núm"
                u"|número|página|pág|hoja|código postal|cp|d.p.|uso cfdi|op|cajero|atendido por|garantía|nº de "
                u"serie|número de serie|modelo|comunidad autónoma|asiento|coche|vuelo|puerta|tarifa|apdo|apartado de "
                u"correos|mayor de edad|con domicilio|con dni|con nif|en adelante|objeto|se acuerda|nº recibo|cups"
                u"|potencia contratada|curso|tutor|tutora|nif/cif|nº de socio|objetivo|situación|firmado|fdo|horas"
                u"|sede|entidad|oficina|nº cuenta|cuenta"_s },
        },
        {
            { Invoice, u"Factura"_s,
                u"factura|factura electrónica|^número de factura|^nº factura|^fecha de factura|factura proforma|^base "
                u"imponible|minuta~|^cfdi"_s },
            { CreditNote, u"Factura rectificativa"_s,
                u"factura rectificativa|nota de crédito|nota de abono|factura de abono"_s },
            { Receipt, u"Recibo"_s,
                u"recibo|ticket|tique|factura simplificada|^gracias por su compra|^gracias por su "
                u"visita|^camarero|^mesa"
                u"|^su cambio|^cajero|ticket de compra|tíquet|^efectivo|recibo de pago|justificante de pago|nota de "
                u"venta"
                u"|^le atendió|^atendido por|comprobante de pago"_s },
            { Quote, u"Presupuesto"_s, u"presupuesto|cotización|oferta económica|^validez|propuesta económica"_s },
            { Statement, u"Extracto"_s,
                u"extracto|extracto de cuenta|extracto bancario|estado de cuenta|^saldo anterior|^saldo final|^saldo "
                u"inicial"
                u"|resumen de movimientos|extracto mensual|extracto de movimientos|extracto de tarjeta"_s },
            { Payslip, u"Nómina"_s,
                u"nómina|recibo de salarios|recibo individual justificativo del pago de salarios|recibo de "
                u"nómina|^líquido "
                u"a percibir|^total devengado|^líquido total a percibir|^salario base|hoja de salario"_s },
            { TaxAssessment, u"Liquidación"_s,
                u"liquidación~|liquidación tributaria|impuesto sobre bienes inmuebles|recibo del ibi|^cuota a ingresar"
                u"|propuesta de liquidación|liquidación provisional"_s },
            { RentalAgreement, u"Contrato de arrendamiento"_s, u"contrato de arrendamiento|contrato de alquiler"_s },
            { EmploymentContract, u"Contrato de trabajo"_s,
                u"contrato de trabajo|contrato laboral|contrato individual de trabajo|contrato de prácticas"_s },
            { NonDisclosureAgreement, u"Acuerdo de confidencialidad"_s,
                u"acuerdo de confidencialidad|contrato de confidencialidad|nda|convenio de confidencialidad"_s },
            { PurchaseAgreement, u"Contrato de compraventa"_s,
                u"contrato de compraventa|compraventa~|contrato de compra|contrato de arras"_s },
            { ServiceAgreement, u"Contrato de servicios"_s,
                u"contrato de servicios|contrato de prestación de servicios|contrato de mantenimiento|contrato de "
                u"obra|convenio de colaboración|acuerdo de colaboración|contrato de licencia|contrato mercantil"_s },
            { LoanAgreement, u"Contrato de préstamo"_s, u"contrato de préstamo|pagaré|reconocimiento de deuda"_s },
            { PowerOfAttorney, u"Poder notarial"_s, u"poder notarial|poder general|carta poder|poder especial"_s },
            { InsurancePolicy, u"Póliza de seguro"_s,
                u"póliza de seguro|póliza~|condiciones particulares|certificado de seguro|^tomador|^número de póliza"_s },
            { Deed, u"Escritura"_s, u"escritura~|escritura pública|testamento|escritura de compraventa"_s },
            { Contract, u"Contrato"_s, u"contrato~|acuerdo~|convenio~"_s },
            { Letter, u"Carta"_s, u"carta de recomendación|carta de presentación"_s },
            { Email, u"Correo"_s, {} },
            { Report, u"Informe"_s,
                u"informe~|informe anual|informe de alta|memoria anual|informe médico|informe trimestral|informe "
                u"pericial"
                u"|memoria~|informe de gestión|informe de inspección|informe técnico|boletín de notas"_s },
            { Minutes, u"Acta"_s, u"acta~|acta de la junta|acta de reunión|acta de la reunión|minuta de reunión"_s },
            { Agenda, u"Agenda"_s, u"orden del día~"_s },
            { Article, u"Artículo"_s, u"nota de prensa|boletín informativo"_s },
            { Recipe, u"Receta"_s, u"receta~|^ingredientes|^elaboración|^preparación"_s },
            { Certificate, u"Certificado"_s,
                u"certificado|certificado de asistencia|diploma|título~|certificado de empadronamiento|certificado "
                u"de aprovechamiento|certificado de nacimiento|justificante~"_s },
            { CurriculumVitae, u"CV"_s, u"curriculum vitae|currículum|curriculum|currículum vítae"_s },
            { Warranty, u"Garantía"_s, u"tarjeta de garantía|certificado de garantía|garantía~"_s },
            { Booking, u"Reserva"_s,
                u"confirmación de reserva|confirmación de la reserva|confirmación de cita|confirmación de pedido"
                u"|reserva~|bono de hotel|confirmación de compra"_s },
            { Ticket, u"Billete"_s, u"billete~|tarjeta de embarque|billete de tren|entrada~|billete electrónico"_s },
            { Manual, u"Manual"_s, u"manual de usuario|manual de instrucciones|guía de usuario|manual~"_s },
        },
    };
    return words;
}

} // namespace Varlo
