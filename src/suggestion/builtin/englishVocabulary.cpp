// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/Vocabulary.h"

namespace Varlo {

using namespace Qt::StringLiterals;

const Vocabulary &englishVocabulary()
{
    using enum Label;
    using enum DocumentType;
    static const Vocabulary words {
        FilenameLanguage::English,
        u"Photo"_s,
        u"the|and|of|to|for|with|your|you|this|that|is|are|was|were|by|from|on|at|our|we|be|have|has|will|please|it|not"
        u"|if|an|as|which|their|or"_s,
        { u"january|jan"_s, u"february|feb"_s, u"march|mar"_s, u"april|apr"_s, u"may"_s, u"june|jun"_s, u"july|jul"_s,
            u"august|aug"_s, u"september|sept|sep"_s, u"october|oct"_s, u"november|nov"_s, u"december|dec"_s },
        u"of|the|and|for|&|at|in|on"_s,
        u"the|a|an|this|that|these|we|you|your|our|it|in|on|at|by|for|as|when|if|there|here|please|thank|thanks|all|i"
        u"|my|he|she|they|what|how|walk|since|after|before|with|from|to|last|today|first|once|dear|makes|it's|most"
        u"|many|some|every|each|while|although|over|under|during|between"_s,
        u"street|st|road|rd|lane|avenue|ave|drive|close|court|ct|crescent|terrace|row|yard|square|boulevard|blvd|works"
        u"|house|walk|mews|parade|estate|park|quay|wharf|hill|gardens|mill|building"_s,
        u"council|trust|university|college|school|academy|hospital|clinic|bank|institute|association|society|foundation"
        u"|church|agency|department|ministry|office|library|museum|hotel|restaurant|cafe|bakery|pharmacy|practice"
        u"|surgery|club|union|authority|insurance|energy|water|group|studio|services|solutions|market|garage"_s,
        u"and"_s,
        u"monday|mon|tuesday|tue|tues|wednesday|wed|thursday|thu|thur|thurs|friday|fri|saturday|sat|sunday|sun"_s,
        u"open|opening|closed|accounts|faculty|division|directorate|headteacher"_s,
        u"address|registered|residing|whose|office|business|at"_s,
        {
            { DocumentDate,
                u"invoice date|date of invoice|date issued|issue date|date of issue|issued on|issued|bill date|billing "
                u"date|statement date|quote date|quotation date|receipt date|date of receipt|letter date|report date"
                u"|document date|order date|booked on|booking date|purchase date|date of purchase|published|published "
                u"on|posted on|held on|held in|held at|meeting date|date of meeting|dated|signed on|signed in|date "
                u"signed|date of "
                u"signature|signature date|credit note date|typed|transaction date|tax point|executed on|made on"
                u"|entered into on|entered into as of|as of|date prepared|prepared on|award date|date of award|date "
                u"printed|invoiced on|tax date|made this|made the|made on the|dated the|dated this|date of "
                u"agreement|agreement date|date and time"
                u"|ordered on|order placed|date paid|paid on|date of visit|letter dated|awarded on|completed on|tested "
                u"on|inspection date|date of inspection|date of report|assessment date|notice date|date of notice"_s },
            { PlainDate, u"date|on the date of|on this"_s },
            { LesserDate,
                u"effective date|effective|pay date|payment date|start date|commencement date|commencing|starting on"
                u"|with effect from|last updated|updated|modified|inception date|policy start"_s },
            { OtherDate,
                u"due date|date due|due|payment due|due by|pay by|due on|payable by|date of birth|birth date|born|born "
                u"on|dob|delivery date|delivered|delivery|ship date|shipped|shipping date|expiry date|expiry|expires"
                u"|expires on|expiration date|valid until|valid to|valid from|valid through|end date|until|billing "
                u"period|statement period|period|service period|period covered|period of insurance|next meeting|next "
                u"payment|check-in|check in|check-out|check out|arrival|departure|departs|departing|arrives|dictated"
                u"|renewal date|your letter of|registered on|hire date|joined|payment received|return by|next reading"
                u"|previous reading|since|minutes of the meeting of|appointment|next appointment|on or after|deadline"
                u"|before|by|tax year|travel date|outbound|return|date of travel|departure date|supply date|delivery on"
                u"|order by|reply by|respond by|last day|no later than|ending|ends on|discharged|admitted|admission "
                u"date|referral date|collection date|will be collected on|taken on"_s },
            { Total,
                u"total|grand total|total due|amount due|total amount due|total amount|balance due|amount "
                u"payable|total "
                u"payable|total to pay|to pay|total inc vat|total incl vat|total including vat|total including "
                u"tax|total "
                u"inc tax|total inc gst|total incl tax|invoice total|total invoice|total price|amount to pay|total gbp"
                u"|total usd|total eur|total charges this period|total charges|price|total cost|order total|total paid"
                u"|total for this bill|please pay|you owe|total owed|total now due|total payment|quote total|total "
                u"quote|total quotation|total charged|amount charged|amount paid|total amount payable|total payable "
                u"now|total incl|total inc"_s },
            { FinalBalance,
                u"closing balance|ending balance|new balance|final balance|balance carried forward|current balance"
                u"|balance at end|your balance|statement balance|end balance|balance at close"_s },
            { NetPay,
                u"net pay|net salary|net wages|take home pay|take-home pay|net payment|net amount paid|amount net"
                u"|payment to bank|net earnings"_s },
            { OtherAmount,
                u"subtotal|sub total|sub-total|net total|total net|total excl vat|total ex vat|total exc vat|total "
                u"before tax|total before vat|vat|vat total|total vat|tax|sales tax|total tax|tax total|gst|cash"
                u"|cash tendered|tendered|change|change due|discount|total discount|deposit|a deposit of|previous "
                u"balance|opening balance|starting balance|beginning balance|total paid out|total paid in|total "
                u"deductions|gross pay|total gross|total payments|shipping|savings|total savings|you saved|tip|service"
                u"|service charge|gratuity|amount|unit price|rate|total items|total credits|total debits|total "
                u"deposits|total withdrawals|year to date|ytd|credit limit|minimum payment|points|total points|total "
                u"earnings|net|gross|total hours|delivery charge|excess|sum insured|insured value|paid out|paid in"
                u"|total received|payments received|total money in|total money out|money in|money out|rounding"_s },
            { Seller,
                u"from:|seller|vendor|supplier|sold by|issued by|issuer|billed by|bill from|merchant|payee|service "
                u"provider|provider:|remit to|make cheques payable to|make checks payable to|payable to|company "
                u"name|company:|store name|thank you for shopping at|thanks for shopping at|thank you for choosing"
                u"|thank you for visiting|welcome to|account holder:|beneficiary:|prepared by"_s },
            { Buyer,
                u"bill to|billed to|invoice to|sold to|ship to|deliver to|customer|client|customer name|client name"
                u"|to:|for:|received from|received with thanks from|recipient|prepared for|quote for|quotation "
                u"for|guest|guest "
                u"name|passenger|passenger name|account name|patient|member|invoice for|quote to|payer|delivery "
                u"address|billing address|invoice address|customer details"_s },
            { Attention, u"attn|attention|attention of|for the attention of|fao"_s },
            { PayingDepartment,
                u"accounts payable|purchase ledger|bought ledger|accounts department|purchasing department"_s },
            { ActingFor, u"on behalf of|for and on behalf of|acting for|representing"_s },
            { PartyOne,
                u"landlord|employer|lessor|seller:|licensor|lender|disclosing party|insurer|contractor:|service "
                u"provider:|party a|first party|principal|owner|company:|consultant:|supplier:"_s },
            { PartyTwo,
                u"tenant|employee|lessee|buyer:|licensee|borrower|receiving party|policyholder|policy holder|insured"
                u"|named insured|party b|second party|attorney:|purchaser|client:|customer:|donee|the insured"
                u"|employee name"_s },
            { Label::Parties,
                u"between|parties 1|the parties 1|by and between|made between|entered into between|parties:|the parties:"_s },
            { Subject, u"subject|re:|regarding:|concerning:|subject line|topic:|title:|subject:|in re:"_s },
            { Author, u"author|by:|written by|prepared by:|authors"_s },
            { Salutation, u"dear|dear sir|dear madam|to whom it may concern|hi|hello"_s },
            { Closing,
                u"yours sincerely|sincerely|yours faithfully|kind regards|best regards|regards|best wishes|yours truly"
                u"|with kind regards|warm regards|sincerely yours|respectfully|many thanks"_s },
            { Field,
                u"tel|telephone|phone|fax|email|e-mail|web|website|vat no|vat number|vat reg|vat registration|company "
                u"no|company number|registered in|registered office|reg no|invoice number|invoice no|invoice #|invoice "
                u"id|receipt no|receipt number|order no|order number|order id|order:|po number|po box|p o box|account "
                u"number|account no|account:|customer no|customer number|client no|reference|our ref|your ref|ref|ref "
                u"no|iban|bic|swift|sort code|store:|store no|till|cashier|register|table|server|unit|suite|floor|page"
                u"|description|qty|quantity|item|items|present|attendees|apologies|location|place|venue|time|"
                u"department "
                u"of|department|dept|version|revision|policy number|policy no|certificate no|certificate number"
                u"|confirmation number|booking reference|reservation number|serial number|serial no|model|summary"
                u"|abstract|introduction|contents|table of contents|ingredients|method|serves|whereas|recitals|this "
                u"agreement|the parties|this is to certify|nhs no|ni number|tax code|position|hours|salary|meter|tariff"
                u"|payment terms|terms|status|job title|profile|experience|education|skills|address|name|valid|notes:"
                u"|prep time|preparation time|cook time|chair|chairperson|chaired by|minute taker|clerk|purpose|tax id"
                u"|ein|abn|employee id|employee no|guest check|check no|order #|terminal|transaction id|auth code|vat "
                u"gb|booking ref|ticket no|ticket number|flight|seat|gate|branch|store|licence no|license no|po "
                u"no|dear "
                u"customer|this letter|enclosed|enc|cc|tenant ref|statement no|statement number|quote no|quote number"
                u"|quotation no|quotation number|quote ref|case no|file no|claim number|reg charity|registered charity"
                u"|charity no|open|opening hours|your electricity|your gas|your water|your energy|your bill"_s },
        },
        {
            { Invoice, u"Invoice"_s,
                u"invoice|tax invoice|vat invoice|sales invoice|^invoice number|^invoice no|^invoice date|proforma "
                u"invoice|pro forma invoice|bill~|electricity bill|water bill|gas bill|phone bill|energy bill|utility "
                u"bill"
                u"|your bill|^billing period|^bill date|broadband bill|council tax bill|telephone bill"_s },
            { CreditNote, u"Credit Note"_s, u"credit note|credit memo|credit invoice"_s },
            { Receipt, u"Receipt"_s,
                u"receipt|sales receipt|card receipt|cash receipt|payment receipt|till receipt|^guest check|^thank you "
                u"for shopping|^thank you for your purchase|^cashier|^till|^change due|^cash|^thank you for your "
                u"visit|^server|^thank you for visiting|^thank you for dining|official receipt|receipt of payment"_s },
            { Quote, u"Quote"_s, u"quote|quotation|estimate~|price quote|cost estimate|^quote date|^quote number"_s },
            { Statement, u"Statement"_s,
                u"statement~|account statement|bank statement|statement of account|account summary|credit card "
                u"statement|monthly statement|annual statement|savings statement|^closing balance|^opening balance"
                u"|^statement period"_s },
            { Payslip, u"Payslip"_s,
                u"payslip|pay slip|pay stub|paystub|earnings statement|salary slip|pay advice|wage slip|pay statement"
                u"|^net pay|^gross pay|statement of earnings"_s },
            { TaxAssessment, u"Tax Assessment"_s, u"tax assessment|notice of assessment|tax calculation"_s },
            { RentalAgreement, u"Rental Agreement"_s,
                u"rental agreement|tenancy agreement|lease agreement|residential lease|residential lease agreement"
                u"|rental contract|lease contract|tenancy contract|commercial lease|lease~"_s },
            { EmploymentContract, u"Employment Contract"_s,
                u"employment contract|contract of employment|employment agreement|offer of employment"_s },
            { NonDisclosureAgreement, u"Non-Disclosure Agreement"_s,
                u"non-disclosure agreement|nondisclosure agreement|non disclosure agreement|confidentiality agreement"
                u"|mutual nda|nda"_s },
            { PurchaseAgreement, u"Purchase Agreement"_s,
                u"purchase agreement|sale agreement|sales agreement|sales contract|bill of sale|sale and purchase "
                u"agreement|purchase contract|agreement of sale"_s },
            { ServiceAgreement, u"Service Agreement"_s,
                u"service agreement|services agreement|consulting agreement|consultancy agreement|service contract"
                u"|master services agreement|maintenance contract|maintenance agreement|freelance agreement"
                u"|independent contractor agreement|licence agreement|license agreement|partnership agreement"_s },
            { LoanAgreement, u"Loan Agreement"_s, u"loan agreement|promissory note|credit agreement|loan contract"_s },
            { PowerOfAttorney, u"Power of Attorney"_s, u"power of attorney|lasting power of attorney"_s },
            { InsurancePolicy, u"Insurance Policy"_s,
                u"insurance policy|policy schedule|insurance certificate|certificate of insurance|policy document"
                u"|insurance schedule|policy declarations|^policyholder"_s },
            { Deed, u"Deed"_s, u"deed~|title deed|deed of gift|last will and testament|deed of sale"_s },
            { Contract, u"Contract"_s, u"contract~|agreement~"_s },
            { Letter, u"Letter"_s, u"cover letter|letter of recommendation|reference letter"_s },
            { Email, u"Email"_s, {} },
            { Report, u"Report"_s,
                u"report~|annual report|quarterly report|inspection report|research report|progress report|incident "
                u"report|survey report|discharge summary|test report|lab report|laboratory report|white paper|school "
                u"report|case study"_s },
            { Minutes, u"Minutes"_s,
                u"minutes~|meeting minutes|minutes of|minutes of the meeting|meeting notes|^apologies for absence"
                u"|^action items"_s },
            { Agenda, u"Agenda"_s, u"agenda~|meeting agenda"_s },
            { Article, u"Article"_s, u"newsletter|press release"_s },
            { Recipe, u"Recipe"_s, u"recipe|^ingredients|^prep time"_s },
            { Certificate, u"Certificate"_s,
                u"certificate|certificate of completion|certificate of attendance|certificate of achievement|birth "
                u"certificate|diploma|certificate of registration|^this is to certify"_s },
            { CurriculumVitae, u"CV"_s, u"curriculum vitae|resume~|résumé~"_s },
            { Warranty, u"Warranty"_s,
                u"warranty~|warranty card|warranty certificate|guarantee card|certificate of warranty|limited "
                u"warranty"_s },
            { Booking, u"Booking"_s,
                u"booking confirmation|reservation confirmation|order confirmation|appointment confirmation|itinerary"
                u"|travel itinerary|confirmation of booking|reservation~"_s },
            { Ticket, u"Ticket"_s, u"e-ticket|eticket|boarding pass|ticket~|admission ticket|train ticket"_s },
            { Manual, u"Manual"_s, u"user manual|user guide|instruction manual|quick start guide"_s },
        },
    };
    return words;
}

} // namespace Varlo
