// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/Vocabulary.h"

namespace Varlo {

using namespace Qt::StringLiterals;

const Vocabulary &dutchVocabulary()
{
    using enum Label;
    using enum DocumentType;
    static const Vocabulary words {
        FilenameLanguage::Dutch,
        u"Foto"_s,
        u"het|een|van|voor|met|niet|zijn|aan|wij|uw|wordt|worden|naar|bij|ook|heeft|hebben|deze|dit|dat|te|op|ons|onze"
        u"|wilt|graag|uit|om|als|nog|tot|er|maar|door|waarvan|geachte|beste|mevrouw|heer|btw|datum|bedrag|totaal"_s,
        { u"januari|jan"_s, u"februari|feb|febr"_s, u"maart|mrt"_s, u"april|apr"_s, u"mei"_s, u"juni|jun"_s,
            u"juli|jul"_s, u"augustus|aug"_s, u"september|sept|sep"_s, u"oktober|okt"_s, u"november|nov"_s,
            u"december|dec"_s },
        u"de|het|van|der|den|ter|ten|te|'t|in|op|aan|en|voor|bij|la"_s,
        u"de|het|een|wij|we|u|uw|ons|onze|dit|deze|dat|er|op|in|bij|voor|met|als|wanneer|hierbij|hiermee|door|na|om|"
        u"naar"
        u"|vanaf|van|sinds|wie|wat|hoe|ik|je|jij|hij|zij|ze|is|zijn|heeft|tijdens|graag|via|aan|alle|elke|veel|vandaag"
        u"|tot|omdat|nadat|verwarm|beste|geachte|afgelopen|vorig|komende|volgens|onder|over|tussen|zoals|ook|nu|dan"
        u"|daarom|bedankt|dank"_s,
        u"straat|weg|laan|plein|kade|gracht|dijk|markt|steeg|singel|dreef|hof|pad|brink|wal|park|haven|baan|dam|kruid"
        u"|rug|allee|boulevard|poort|veld|erf|plantsoen|ring"_s,
        u"gemeente|stichting|vereniging|coöperatie|waterschap|provincie|ministerie|universiteit|hogeschool|basisschool"
        u"|school|college|ziekenhuis|huisartsenpraktijk|praktijk|kliniek|apotheek|bakkerij|garage|restaurant|eetcafé"
        u"|café|hotel|bank|bibliotheek|museum|vve|woningstichting|woningcorporatie|belastingdienst|installatiebedrijf"
        u"|bedrijf|schildersbedrijf|loodgietersbedrijf|bouwbedrijf|drukkerij|slagerij|kapsalon|rechtbank|tandarts"
        u"|tandartspraktijk|notariskantoor|advocatenkantoor|accountantskantoor|kantoor|verzekeringen|energie"_s,
        u"en|anderzijds"_s,
        u"maandag|ma|dinsdag|di|woensdag|wo|donderdag|do|vrijdag|vr|zaterdag|za|zondag|zo"_s,
        u"afdeling|polikliniek|faculteit|team|directie|vakgroep|openingstijden|geopend|gesloten|secretariaat"_s,
        u"gevestigd|wonende|woonachtig|kantoorhoudende|adres|ingeschreven|geboren"_s,
        {
            { DocumentDate,
                u"factuurdatum|notadatum|datum factuur|datum nota|offertedatum|datum offerte|datum afschrift"
                u"|afschriftdatum|dagtekening|datum dagtekening|datum van afgifte|afgiftedatum|afgegeven op|datum "
                u"uitgifte|uitgegeven op|gedateerd|datum brief|briefdatum|opgemaakt op|opgesteld op|getekend te"
                u"|ondertekend te|getekend op|ondertekend op|aldus overeengekomen|aldus opgemaakt|aldus getekend"
                u"|gepubliceerd|gepubliceerd op|geplaatst op|publicatiedatum|vergaderdatum|datum vergadering"
                u"|aankoopdatum|datum aankoop|bestelldatum|besteldatum|boekingsdatum|geboekt op|geboekt|verslagdatum"
                u"|rapportdatum|datum rapport|transactiedatum|datum document|documentdatum|datum en tijd|besteld op"
                u"|verzonden|datum verzending|gehouden op|gehouden in|gehouden te|datum ondertekening|datum "
                u"polis|polisdatum|datum besluit"
                u"|verzenddatum|datum bon|bondatum|datum aanslag|datum overzicht|datum uitreiking|uitgereikt op|datum "
                u"opmaak|datum rapportage|inspectiedatum|keuringsdatum|datum keuring|datum onderzoek|behaald op"_s },
            { PlainDate, u"datum|d.d.|dd|de dato"_s },
            { LesserDate,
                u"ingangsdatum|ingaande|ingaande op|gaat in op|per|betaaldatum|datum betaling|uitbetaald op"
                u"|betaalbaarstelling|laatst gewijzigd|bijgewerkt|datum indiensttreding|verwerkingsdatum|betaald op"
                u"|uitbetaling|datum uitbetaling"_s },
            { OtherDate,
                u"vervaldatum|vervaldag|uiterste betaaldatum|te betalen voor|betalen voor|betalen vóór|uiterlijk|voor:"
                u"|geboortedatum|geboren|geboren op|geb|geb datum|leverdatum|leveringsdatum|levering|verwachte "
                u"levering|bezorgdatum|bezorging|geldig tot|geldig t/m|geldig tot en met|geldig van|einddatum|eindigt"
                u"|tot en met|t/m|periode|leveringsperiode|verbruiksperiode|looptijd|in dienst|datum in "
                u"dienst|begindatum"
                u"|startdatum|volgende vergadering|notulen van|uw brief van|aankomst|vertrek|inchecken|uitchecken"
                u"|huurperiode|verzekerd van|vanaf|tot|vóór|afspraak|afgeschreven|afgeschreven op|incasso op|rond"
                u"|incassodatum|reisdatum|heenreis|terugreis|verblijf|contractvervaldatum|hoofdvervaldatum|op of rond"
                u"|vorige meterstand|meterstand|tijdvak|volgende overleg|volgend overleg|opname|ontslag|verslag van"
                u"|voor akkoord|betalingstermijn|uitvoering|datum uitvoering|opgenomen op|in te leveren"_s },
            { Total,
                u"totaal|te betalen|totaal te betalen|totaal te voldoen|totaal incl|totaal incl btw|totaal inclusief"
                u"|totaal inclusief btw|totaalbedrag|eindtotaal|totaal bedrag|factuurbedrag|factuurtotaal|totaal "
                u"factuur|te voldoen|bedrag te betalen|totaal eur|verschuldigd bedrag|totaalprijs|totaal verschuldigd"
                u"|prijs|te betalen bedrag|totaal betaald|totaal offerte|openstaand bedrag|totaal bedrag incl btw"
                u"|totaalbedrag incl btw|totaalbedrag inclusief btw|nog te betalen|door u te betalen|u betaalt|bedrag "
                u"incl btw|totaal aanslag|bedrag aanslag|aanslagbedrag|termijnbedrag|totaal generaal|betaald"_s },
            { FinalBalance,
                u"nieuw saldo|eindsaldo|saldo nieuw|huidig saldo|saldo per|saldo ultimo|slotsaldo|saldo eind"_s },
            { NetPay,
                u"nettoloon|netto loon|netto salaris|nettosalaris|netto te betalen|netto uitbetaling|netto uit te "
                u"betalen|uit "
                u"te betalen|netto|netto te ontvangen|uitbetaald|totaal netto|nettobetaling"_s },
            { OtherAmount,
                u"subtotaal|sub totaal|totaal excl|totaal excl btw|totaal exclusief|totaal exclusief btw|totaal ex "
                u"btw|btw|btw totaal|totaal btw|btw laag|btw hoog|waarvan btw|bedrag excl btw|contant|wisselgeld"
                u"|terug|retour|pin|korting|totaal korting|vorig saldo|beginsaldo|oud saldo|saldo vorig|totaal af"
                u"|totaal bij|brutoloon|bruto loon|bruto salaris|bruto|totaal bruto|loonheffing|inhoudingen|totaal "
                u"inhoudingen|verzendkosten|bedrag|stuksprijs|statiegeld|aanbetaling|voorschotten|betaalde "
                u"voorschotten|in rekening gebrachte termijnen|u bespaart|voordeel|uw voordeel|totaal voordeel|eigen "
                u"risico|verzekerd bedrag|waarborgsom|kale huur|uurloon|vakantiegeld|grondslag|netto bedrag|nettobedrag"
                u"|totaal uren|arbeidsloon|totaal bijgeschreven|totaal afgeschreven|bijgeschreven|reeds betaald"
                u"|voorrijkosten|koopzegels|spaarzegels|afronding"_s },
            { Seller,
                u"verkoper|leverancier|van:|afzender|uitgever|winkel|opdrachtnemer:|begunstigde|t.n.v. "
                u"rekening|bedrijf:"
                u"|bedankt voor uw bezoek aan|bedankt voor uw aankoop bij|welkom bij|uitgegeven door|verstrekt door"_s },
            { Buyer,
                u"koper|ontvangen van|klant|klantnaam|aan|aan:|aan de|factuur "
                u"aan|factuuradres|afleveradres|bezorgadres|leveradres"
                u"|debiteur|voor:|offerte voor|opdrachtgever:|gast|reiziger|patiënt|patient"
                u"|ontvanger|geadresseerde|ten name van|tnv|t.n.v|betreft perceel van|passagier|klantgegevens|naam "
                u"klant|relatie:|contactpersoon|afnemer"_s },
            { Attention, u"t.a.v.|tav|ter attentie van"_s },
            { PayingDepartment, u"crediteurenadministratie|crediteuren|afdeling inkoop|inkoopadministratie"_s },
            { ActingFor, u"namens|handelend namens|optredend namens"_s },
            { PartyOne,
                u"verhuurder|werkgever|verkoper:|geldgever|uitlener|verzekeraar|opdrachtgever:|licentiegever"
                u"|volmachtgever|partij a|partij 1|schuldeiser|uitlenende partij|verstrekkende partij"_s },
            { PartyTwo,
                u"huurder|werknemer|koper:|geldnemer|lener|verzekeringnemer|verzekerde|opdrachtnemer:|licentienemer"
                u"|gevolmachtigde|partij b|partij 2|schuldenaar|medewerker|naam werknemer|ontvangende partij"_s },
            { Label::Parties, u"tussen|partijen 1|ondergetekenden|de ondergetekenden|partijen:|de partijen:"_s },
            { Subject, u"onderwerp|betreft|inzake|titel:|betr:|ons onderwerp"_s },
            { Author, u"auteur|auteurs|door:|geschreven door|opgesteld door"_s },
            { Salutation, u"geachte|beste|lieve|hallo|dag|l.s.|weledelgeboren"_s },
            { Closing,
                u"met vriendelijke groet|met vriendelijke groeten|hoogachtend|vriendelijke groeten|hartelijke groeten"
                u"|hartelijke groet|groeten|groetjes|met collegiale groet|met hartelijke groet|vriendelijke groet|met "
                u"hoogachting"_s },
            { Field,
                u"tel|telefoon|fax|e-mail|email|website|kvk|kvk-nummer|kvk nummer|btw-nummer|btw nummer|btw nr|btw-nr"
                u"|btw-id|iban|bic|factuurnummer|factuurnr|factuur nr|nota nr|notanummer|bonnummer|bonnr|bestelnummer"
                u"|ordernummer|bestelling:|klantnummer|klantnr|debiteurnummer|offertenummer|offerte nr|polisnummer"
                u"|referentie|kenmerk|ons kenmerk|uw kenmerk|uw referentie|rekeningnummer|volgnummer|blad|pagina"
                u"|omschrijving|aantal|artikel|artikelen|filiaal|kassa|tafel|bediening|terminal|postbus|afdeling"
                u"|aanwezig|afwezig|plaats|locatie|tijd|voorzitter|notulist|versie|auteur|samenvatting|inleiding"
                u"|inhoud|inhoudsopgave|ingrediënten|bereiding|bereidingswijze|bereidingstijd|bsn|loonheffingennummer"
                u"|functie|aanslagnummer|serienummer|garantietermijn|klantenservice|openingstijden|dossiernummer"
                u"|zaaknummer|adres|naam|artikel 1|artikel 2|bijlage|bijlagen|patiëntnummer|verhuurt|zijn "
                u"overeengekomen|verklaren|in aanmerking nemende|personeelsnummer|contractnummer|meternummer|klas"
                u"|groep:|agenda:|telefoonnummer|periode|certificaatnummer|registratienummer|boekingsnummer"
                u"|reserveringsnummer|bezoekadres|vestiging|bon nr|bon|opleiding|werkervaring|profiel|uw contactpersoon"
                u"|behandeld door|doorkiesnummer|onderstaande|afschriftnummer|stoel|vertrektijd|cc|kopie|heden"
                u"|personen|aantal personen|porties"_s },
        },
        {
            { Invoice, u"Factuur"_s,
                u"factuur|^factuurnummer|^factuurdatum|^factuurnr|nota~|jaarnota|termijnnota|eindafrekening|"
                u"jaarafrekening"
                u"|energienota|verzamelfactuur|energierekening|proforma factuur|zorgnota|declaratie~|rekening~"
                u"|voorschotnota|ereloonnota|doktersnota|tandartsnota|deelfactuur|eindfactuur|slotfactuur"_s },
            { CreditNote, u"Creditnota"_s, u"creditnota|creditfactuur"_s },
            { Receipt, u"Bon"_s,
                u"bon|kassabon|aankoopbon|betaalbewijs|kassaticket|^bedankt voor uw bezoek|^bedankt en tot ziens|^kassa"
                u"|^wisselgeld|^rekening tafel|^tafel|kwitantie|^bedankt voor uw aankoop|^filiaal|^pin|^bediening"
                u"|^u bent geholpen door|^contant|^tot ziens|pinbon|bonnetje"_s },
            { Quote, u"Offerte"_s,
                u"offerte|prijsopgave|^offertenummer|^offertedatum|kostenraming|prijsvoorstel|begroting~"_s },
            { Statement, u"Overzicht"_s,
                u"rekeningoverzicht|bankafschrift|rekeningafschrift|dagafschrift|afschrift|overzicht~|jaaroverzicht"
                u"|saldo-overzicht|financieel jaaroverzicht|maandoverzicht|^nieuw saldo|^vorig saldo|^beginsaldo"
                u"|^eindsaldo|creditcardoverzicht|transactieoverzicht"_s },
            { Payslip, u"Loonstrook"_s,
                u"loonstrook|loonstrookje|salarisspecificatie|salarisstrook|loonspecificatie|salarisafrekening|^"
                u"nettoloon"
                u"|^brutoloon|^loonheffing|jaaropgave|uitkeringsspecificatie"_s },
            { TaxAssessment, u"Aanslag"_s,
                u"aanslag|aanslagbiljet|belastingaanslag|voorlopige aanslag|gecombineerde aanslag|^aanslagnummer"
                u"|definitieve aanslag|naheffingsaanslag"_s },
            { RentalAgreement, u"Huurovereenkomst"_s,
                u"huurovereenkomst|huurcontract|huurovereenkomst woonruimte|huurovereenkomst "
                u"bedrijfsruimte|huurovereenkomst "
                u"kantoorruimte|huurovereenkomst winkelruimte"_s },
            { EmploymentContract, u"Arbeidsovereenkomst"_s,
                u"arbeidsovereenkomst|arbeidsovereenkomst voor bepaalde tijd|arbeidsovereenkomst voor onbepaalde tijd"
                u"|arbeidscontract|stageovereenkomst|uitzendovereenkomst|detacheringsovereenkomst"_s },
            { NonDisclosureAgreement, u"Geheimhoudingsovereenkomst"_s,
                u"geheimhoudingsovereenkomst|geheimhoudingsverklaring|nda|vertrouwelijkheidsovereenkomst"_s },
            { PurchaseAgreement, u"Koopovereenkomst"_s, u"koopovereenkomst|koopcontract|voorlopig koopcontract"_s },
            { ServiceAgreement, u"Dienstverleningsovereenkomst"_s,
                u"dienstverleningsovereenkomst|overeenkomst van opdracht|onderhoudscontract|opdrachtovereenkomst"
                u"|samenwerkingsovereenkomst|licentieovereenkomst|aannemingsovereenkomst|onderhoudsovereenkomst"
                u"|verwerkersovereenkomst|aannemingscontract"_s },
            { LoanAgreement, u"Leenovereenkomst"_s,
                u"leenovereenkomst|geldleningsovereenkomst|kredietovereenkomst|overeenkomst van geldlening"
                u"|bruikleenovereenkomst"_s },
            { PowerOfAttorney, u"Volmacht"_s, u"volmacht|machtiging~"_s },
            { InsurancePolicy, u"Verzekeringspolis"_s,
                u"verzekeringspolis|polisblad|polis~|verzekeringsbewijs|^verzekeringnemer|^polisnummer"_s },
            { Deed, u"Akte"_s, u"akte~|leveringsakte|testament|hypotheekakte|notariële akte"_s },
            { Contract, u"Contract"_s, u"overeenkomst~|contract~|vaststellingsovereenkomst"_s },
            { Letter, u"Brief"_s, {} },
            { Email, u"E-mail"_s, {} },
            { Report, u"Rapport"_s,
                u"rapport~|onderzoeksrapport|jaarverslag|verslag~|keuringsrapport|inspectierapport|adviesrapport"
                u"|eindrapport|eindverslag|tussenrapport|tussenverslag|deelrapport|voortgangsrapport|bouwkundig rapport|stageverslag|rapportage~|schoolrapport"_s },
            { Minutes, u"Notulen"_s, u"notulen|vergaderverslag|notulen vergadering|besluitenlijst"_s },
            { Agenda, u"Agenda"_s, u"agenda~"_s },
            { Article, u"Artikel"_s, u"nieuwsbrief|persbericht"_s },
            { Recipe, u"Recept"_s, u"recept~|^ingrediënten|^bereidingswijze|^bereiding|^bereidingstijd"_s },
            { Certificate, u"Certificaat"_s,
                u"certificaat|diploma|getuigschrift|bewijs van deelname|deelcertificaat"_s },
            { CurriculumVitae, u"CV"_s, u"curriculum vitae|cv~"_s },
            { Warranty, u"Garantiebewijs"_s, u"garantiebewijs|garantiekaart|garantiecertificaat"_s },
            { Booking, u"Boeking"_s,
                u"boekingsbevestiging|reserveringsbevestiging|orderbevestiging|afspraakbevestiging|bestelbevestiging"
                u"|bevestiging van uw reservering|bevestiging van uw boeking|reservering~"_s },
            { Ticket, u"Ticket"_s, u"e-ticket|instapkaart|toegangsbewijs|treinkaartje|toegangskaart|ticket~"_s },
            { Manual, u"Handleiding"_s, u"handleiding|gebruiksaanwijzing|gebruikershandleiding"_s },
        },
    };
    return words;
}

} // namespace Varlo
