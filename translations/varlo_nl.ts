<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Version </source>
        <translation>Versie </translation>
    </message>
    <message>
        <source>Renames files fast based on their contents.</source>
        <translation>Hernoemt bestanden snel op basis van hun inhoud.</translation>
    </message>
    <message>
        <source>Use your own provider</source>
        <translation>Gebruik je eigen provider</translation>
    </message>
    <message>
        <source>Your own key is in use.</source>
        <translation>Je eigen sleutel is in gebruik.</translation>
    </message>
    <message>
        <source>No API key set.</source>
        <translation>Geen API-sleutel ingesteld.</translation>
    </message>
    <message>
        <source>Supported formats</source>
        <translation>Ondersteunde formaten</translation>
    </message>
    <message>
        <source>The file types Varlo can read.</source>
        <translation>De bestandstypen die Varlo kan lezen.</translation>
    </message>
    <message>
        <source>View List</source>
        <translation>Lijst bekijken</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Questions, problems, or feedback.</source>
        <translation>Vragen, problemen of feedback.</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contact opnemen</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentatie</translation>
    </message>
</context>
<context>
    <name>AppMenu</name>
    <message>
        <source>Menu bar</source>
        <translation>Menubalk</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Zoek naar updates…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Herstel</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <extracomment>Read aloud in place of what a button does</extracomment>
        <translation>Nu niet beschikbaar</translation>
    </message>
</context>
<context>
    <name>BottomBar</name>
    <message>
        <source>Add Files…</source>
        <translation>Bestanden toevoegen…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Files done of all</source>
        <translation>Klare bestanden van alle</translation>
    </message>
    <message>
        <source>Size of all files</source>
        <translation>Grootte van alle bestanden</translation>
    </message>
    <message>
        <source>Time of the latest suggestions</source>
        <translation>Duur van de laatste voorstellen</translation>
    </message>
    <message>
        <source>Suggest Names</source>
        <translation>Namen voorstellen</translation>
    </message>
    <message>
        <source>Rename All</source>
        <translation>Alles hernoemen</translation>
    </message>
</context>
<context>
    <name>Choosers</name>
    <message>
        <source>Add Files…</source>
        <translation>Bestanden toevoegen…</translation>
    </message>
    <message>
        <source>Select Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Choose a folder to let Varlo rename the files inside it.</source>
        <extracomment>Open-panel message for granting access to one specific folder</extracomment>
        <translation>Kies een map waarin Varlo bestanden mag hernoemen.</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Open-panel confirm button granting folder access</extracomment>
        <translation>Sta toe</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Choose</source>
        <extracomment>Confirm button of the chooser of the watched folder</extracomment>
        <translation>Kiezen</translation>
    </message>
</context>
<context>
    <name>ClaudeNameSuggester</name>
    <message>
        <source>The request was cancelled.</source>
        <translation>De aanvraag is afgebroken.</translation>
    </message>
    <message>
        <source>The connection was closed before an answer came.</source>
        <translation>De verbinding is verbroken voordat er antwoord kwam.</translation>
    </message>
    <message>
        <source>The model did not answer within %1 seconds.</source>
        <extracomment>Shown in a file&apos;s row; %1 is a number of seconds</extracomment>
        <translation>Het model gaf binnen %1 seconden geen antwoord.</translation>
    </message>
    <message>
        <source>The model&apos;s reply is too long to be one.</source>
        <translation>Het antwoord van het model is te lang.</translation>
    </message>
    <message>
        <source>The model&apos;s reply could not be read: %1.</source>
        <extracomment>Shown in a file&apos;s row; %1 says what is wrong with the reply&apos;s JSON</extracomment>
        <translation>Het antwoord van het model is niet te lezen: %1.</translation>
    </message>
    <message>
        <source>it has no well-formed list of content blocks</source>
        <translation>er staat geen geldige lijst met inhoudsblokken in</translation>
    </message>
</context>
<context>
    <name>ConfiguredNameSuggester</name>
    <message>
        <source>The part of Varlo that asks a model is not installed.</source>
        <translation>Het onderdeel van Varlo dat een model raadpleegt, is niet geïnstalleerd.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>in %1 kan niet geschreven worden</translation>
    </message>
    <message>
        <source>make %1 a folder of yours</source>
        <translation>zorg dat %1 een map van jou is</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>API-sleutel</translation>
    </message>
    <message>
        <source>stored for %1</source>
        <translation>bewaard voor %1</translation>
    </message>
    <message>
        <source>none for %1</source>
        <translation>geen voor %1</translation>
    </message>
    <message>
        <source>store one with `varlo key set`, or use --offline</source>
        <translation>bewaar er een met `varlo key set`, of gebruik --offline</translation>
    </message>
    <message>
        <source>the keyring is locked</source>
        <translation>de sleutelbos is vergrendeld</translation>
    </message>
    <message>
        <source>unlock the keyring, for example by logging in to the desktop</source>
        <translation>ontgrendel de sleutelbos, bijvoorbeeld door op het bureaublad in te loggen</translation>
    </message>
    <message>
        <source>the secret store does not answer</source>
        <translation>de sleutelopslag geeft geen antwoord</translation>
    </message>
    <message>
        <source>restart the desktop&apos;s keyring service</source>
        <translation>start de sleutelbosdienst van het bureaublad opnieuw</translation>
    </message>
    <message>
        <source>Sandbox</source>
        <translation>Afscherming</translation>
    </message>
    <message>
        <source>files are read without one</source>
        <translation>bestanden worden zonder gelezen</translation>
    </message>
    <message>
        <source>files are read with %1 only</source>
        <translation>bestanden worden alleen met %1 gelezen</translation>
    </message>
    <message>
        <source>use a kernel of version 5.13 or newer with Landlock and seccomp</source>
        <translation>gebruik een kernel vanaf versie 5.13 met Landlock en seccomp</translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation>Tekstherkenning</translation>
    </message>
    <message>
        <source>English, Dutch, Spanish</source>
        <translation>Engels, Nederlands, Spaans</translation>
    </message>
    <message>
        <source>no language data for %1</source>
        <translation>geen taalgegevens voor %1</translation>
    </message>
    <message>
        <source>install %1</source>
        <translation>installeer %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>every format can be read</source>
        <translation>elk formaat is te lezen</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>geen decoder voor %1</translation>
    </message>
    <message>
        <source>install Qt&apos;s image formats, and libvips with its loaders</source>
        <translation>installeer de afbeeldingsformaten van Qt, en libvips met zijn laders</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Lezers</translation>
    </message>
    <message>
        <source>install Varlo again</source>
        <translation>installeer Varlo opnieuw</translation>
    </message>
    <message>
        <source>not there: %1</source>
        <translation>niet gevonden: %1</translation>
    </message>
    <message>
        <source>install Varlo again, with the libraries that it names</source>
        <translation>installeer Varlo opnieuw, met de bibliotheken die het noemt</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Gegevens</translation>
    </message>
    <message>
        <source>Endpoint</source>
        <translation>Adres van het model</translation>
    </message>
    <message>
        <source>it cannot be used</source>
        <translation>onbruikbaar</translation>
    </message>
    <message>
        <source>give another one with `varlo config set endpoint URL`</source>
        <translation>geef een ander met `varlo config set endpoint URL`</translation>
    </message>
    <message>
        <source>Secret store</source>
        <translation>Sleutelopslag</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop your files here</source>
        <translation>Zet je bestanden hier neer</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Drop your files here</source>
        <translation>Zet je bestanden hier neer</translation>
    </message>
    <message>
        <source>Varlo reads your files and suggests a new name based on their contents</source>
        <translation>Varlo leest je bestanden en stelt een nieuwe naam voor op basis van de inhoud</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Bestanden toevoegen…</translation>
    </message>
    <message>
        <source>Select Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
</context>
<context>
    <name>Endpoint</name>
    <message>
        <source>This is not an address. It looks like https://host/path.</source>
        <extracomment>About the address of the model&apos;s interface, as typed by the user</extracomment>
        <translation>Dit is geen adres. Een adres ziet eruit als https://host/pad.</translation>
    </message>
    <message>
        <source>The address must start with https://.</source>
        <extracomment>About the address of the model&apos;s interface, as typed by the user</extracomment>
        <translation>Het adres moet met https:// beginnen.</translation>
    </message>
    <message>
        <source>http:// is accepted for this computer only. Use https:// for any other.</source>
        <extracomment>About the address of the model&apos;s interface; http would carry the API key unencrypted</extracomment>
        <translation>http:// mag alleen voor deze computer. Gebruik https:// voor elke andere.</translation>
    </message>
    <message>
        <source>The address must not hold a user name or password.</source>
        <extracomment>About the address of the model&apos;s interface, as typed by the user</extracomment>
        <translation>Er mag geen gebruikersnaam of wachtwoord in het adres staan.</translation>
    </message>
    <message>
        <source>The address must not hold “?” or “#”.</source>
        <extracomment>About the address of the model&apos;s interface; &quot;?&quot; and &quot;#&quot; start parts that cannot be used here</extracomment>
        <translation>Er mag geen ‘?’ of ‘#’ in het adres staan.</translation>
    </message>
</context>
<context>
    <name>Extraction</name>
    <message>
        <source>This file could not be read safely.</source>
        <extracomment>Error for a file whose reader died or answered nonsense.</extracomment>
        <translation>Dit bestand kon niet veilig gelezen worden.</translation>
    </message>
    <message>
        <source>Reading this file took too long.</source>
        <translation>Het lezen van dit bestand duurde te lang.</translation>
    </message>
    <message>
        <source>The part that reads such files is not installed.</source>
        <extracomment>Error when a file of the program itself is missing.</extracomment>
        <translation>Het onderdeel dat zulke bestanden leest, is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>This system cannot lock the reading of files in completely; `varlo doctor` tells what is missing.</source>
        <translation>Dit systeem kan het lezen van bestanden niet helemaal afschermen; `varlo doctor` zegt wat er ontbreekt.</translation>
    </message>
    <message>
        <source>This file is online-only. Download it in its cloud app first, then try again.</source>
        <extracomment>Error for cloud placeholder files whose content is not on this computer.</extracomment>
        <translation>Staat alleen online. Download het in de cloud-app en probeer het opnieuw.</translation>
    </message>
</context>
<context>
    <name>FieldChip</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a field in a template: %1 of %2</extracomment>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Remove Field</source>
        <translation>Veld verwijderen</translation>
    </message>
</context>
<context>
    <name>FileItem</name>
    <message>
        <source>Pending</source>
        <translation>In de wachtrij</translation>
    </message>
    <message>
        <source>Analyzing…</source>
        <translation>Analyseren…</translation>
    </message>
    <message>
        <source>Suggested</source>
        <translation>Voorgesteld</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Hernoemd</translation>
    </message>
    <message>
        <source>Already renamed</source>
        <translation>Al hernoemd</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Geen tekst gevonden</translation>
    </message>
    <message>
        <source>Not supported yet</source>
        <translation>Nog niet ondersteund</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n bestand</numerusform>
            <numerusform>%n bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
</context>
<context>
    <name>FileRow</name>
    <message>
        <source>was</source>
        <translation>was</translation>
    </message>
</context>
<context>
    <name>FileRowNaming</name>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
</context>
<context>
    <name>FilenameLanguage</name>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
</context>
<context>
    <name>FinderRenameError</name>
    <message>
        <source>Finder could not rename the file.</source>
        <extracomment>Fallback error when the Finder rename script fails without a message</extracomment>
        <translation>Finder kon het bestand niet hernoemen.</translation>
    </message>
    <message>
        <source>Allow Varlo to control Finder to rename here (Settings ▸ Folders).</source>
        <extracomment>Error when the Finder-control (Automation) permission is missing</extracomment>
        <translation>Laat Varlo Finder besturen om hier te hernoemen (Instellingen ▸ Mappen).</translation>
    </message>
</context>
<context>
    <name>FolderAccess</name>
    <message>
        <source>To rename files here, allow access to this folder.</source>
        <extracomment>Open-panel message asking for folder access before renaming</extracomment>
        <translation>Geef toegang tot deze map om hier te hernoemen.</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Open-panel confirm button granting folder access</extracomment>
        <translation>Sta toe</translation>
    </message>
</context>
<context>
    <name>FoldersPane</name>
    <message>
        <source>Full access</source>
        <translation>Volledige toegang</translation>
    </message>
    <message>
        <source>Varlo renames by controlling Finder — one quick “Allow” lets it rename files anywhere, with no folder picking.</source>
        <translation>Varlo hernoemt door Finder te besturen. Eén keer ‘Sta toe’ en je kunt overal hernoemen, zonder mappen te kiezen.</translation>
    </message>
    <message>
        <source>Grant access to entire Finder (so all files)</source>
        <translation>Toegang geven tot heel Finder (dus alle bestanden)</translation>
    </message>
    <message>
        <source>Varlo never reads your whole disk — it only opens the files you give it and asks Finder to do the renaming. Change this anytime in System Settings ▸ Privacy &amp; Security ▸ Automation.</source>
        <translation>Varlo leest nooit je hele schijf: het opent alleen de bestanden die je geeft en vraagt Finder om te hernoemen. Wijzig dit wanneer je wilt in Systeeminstellingen ▸ Privacy en beveiliging ▸ Automatisering.</translation>
    </message>
    <message>
        <source>Or allow specific folders</source>
        <translation>Of sta bepaalde mappen toe</translation>
    </message>
    <message>
        <source>Prefer not to grant Finder control? Add the folders you rename in, and Varlo won&apos;t ask each time.</source>
        <translation>Liever geen toegang tot Finder? Voeg de mappen toe waarin je hernoemt, dan vraagt Varlo het niet elke keer.</translation>
    </message>
    <message>
        <source>Choose a folder to let Varlo rename the files inside it.</source>
        <translation>Kies een map waarin Varlo bestanden mag hernoemen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>No folders allowed yet.</source>
        <translation>Nog geen mappen toegestaan.</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Map toevoegen…</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Coming soon</source>
        <translation>Binnenkort</translation>
    </message>
</context>
<context>
    <name>FormatsSheet</name>
    <message>
        <source>Supported formats</source>
        <translation>Ondersteunde formaten</translation>
    </message>
    <message>
        <source>Coming soon</source>
        <translation>Binnenkort</translation>
    </message>
</context>
<context>
    <name>GlobalMenu</name>
    <message>
        <source>Check for Updates…</source>
        <translation>Zoek naar updates…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Herstel</translation>
    </message>
</context>
<context>
    <name>GrantedMark</name>
    <message>
        <source>Granted</source>
        <translation>Toegestaan</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>was</source>
        <translation>was</translation>
    </message>
    <message>
        <source>Reverted</source>
        <translation>Teruggezet</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Terugzetten</translation>
    </message>
</context>
<context>
    <name>HistorySheet</name>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Search history</source>
        <translation>Zoeken in geschiedenis</translation>
    </message>
    <message>
        <source>No renames yet</source>
        <translation>Nog niets hernoemd</translation>
    </message>
    <message>
        <source> selected</source>
        <translation> geselecteerd</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Deselecteren</translation>
    </message>
    <message>
        <source>Revert Selected</source>
        <translation>Selectie terugzetten</translation>
    </message>
    <message>
        <source>Renames saved:</source>
        <translation>Bewaarde hernoemingen:</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Geschiedenis wissen…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
</context>
<context>
    <name>JsonPreferenceStore</name>
    <message>
        <source>The settings in &quot;%1&quot; are damaged and could not be set aside: %2 Nothing can be saved until that is done.</source>
        <translation>De instellingen in &quot;%1&quot; zijn beschadigd en konden niet opzij worden gezet: %2 Tot dat is gebeurd, kan er niets worden bewaard.</translation>
    </message>
    <message>
        <source>The settings in &quot;%1&quot; were damaged. The damaged file was kept as &quot;%2&quot;.</source>
        <translation>De instellingen in &quot;%1&quot; waren beschadigd. Het beschadigde bestand is bewaard als &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>A part of the settings in &quot;%1&quot; was damaged. A copy as it was is in &quot;%2&quot;.</source>
        <translation>Een deel van de instellingen in &quot;%1&quot; was beschadigd. Een kopie van hoe het was, staat in &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The settings in &quot;%1&quot; are damaged: %2</source>
        <translation>De instellingen in &quot;%1&quot; zijn beschadigd: %2</translation>
    </message>
    <message>
        <source>The settings in &quot;%1&quot; could not be read, and the default settings hold: %2</source>
        <translation>De instellingen in &quot;%1&quot; konden niet gelezen worden; de standaardinstellingen gelden: %2</translation>
    </message>
</context>
<context>
    <name>KeyMissingBanner</name>
    <message>
        <source>No API key set.</source>
        <translation>Geen API-sleutel ingesteld.</translation>
    </message>
    <message>
        <source>Paste your own API key from your chosen provider.</source>
        <translation>Plak je eigen API-sleutel van de provider van je keuze.</translation>
    </message>
    <message>
        <source>Use your own provider</source>
        <translation>Gebruik je eigen provider</translation>
    </message>
</context>
<context>
    <name>LanguagePane</name>
    <message>
        <source>Interface language</source>
        <translation>Taal van de app</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Filename language is set in the main window.</source>
        <translation>De taal van bestandsnamen kies je in het hoofdvenster.</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Not available now</source>
        <extracomment>Read aloud in place of an entry&apos;s keys</extracomment>
        <translation>Nu niet beschikbaar</translation>
    </message>
</context>
<context>
    <name>NameCard</name>
    <message>
        <source>was</source>
        <translation>was</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>Suggested name</source>
        <translation>Voorgestelde naam</translation>
    </message>
    <message>
        <source>Type a name…</source>
        <translation>Typ een naam…</translation>
    </message>
</context>
<context>
    <name>NameSuggestionError</name>
    <message>
        <source>The API key holds characters that cannot be sent. Save it again.</source>
        <translation>De API-sleutel bevat tekens die niet verstuurd kunnen worden. Bewaar hem opnieuw.</translation>
    </message>
    <message>
        <source>No API key set.</source>
        <extracomment>Shown in a file&apos;s row when the user has not stored a key for the model yet</extracomment>
        <translation>Geen API-sleutel ingesteld.</translation>
    </message>
    <message>
        <source>The keyring that holds your API key is locked. Unlock it and try again.</source>
        <extracomment>Shown in a file&apos;s row when the desktop&apos;s password store has to be unlocked first</extracomment>
        <translation>De sleutelbos met je API-sleutel is vergrendeld. Ontgrendel hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Unexpected response from the model.</source>
        <extracomment>Shown in a file&apos;s row when the model&apos;s reply holds no usable file name</extracomment>
        <translation>Onverwacht antwoord van het model.</translation>
    </message>
    <message>
        <source>The file has no readable content.</source>
        <extracomment>Shown when the model says that there is nothing to name the file from</extracomment>
        <translation>Het bestand heeft geen leesbare inhoud.</translation>
    </message>
</context>
<context>
    <name>NameTemplate</name>
    <message>
        <source>Invoice</source>
        <translation>Factuur</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Contract</source>
        <translation>Contract</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Naamloos</translation>
    </message>
</context>
<context>
    <name>NothingRenameableBanner</name>
    <message>
        <source>Nothing here Varlo can rename.</source>
        <translation>Hier is niets wat Varlo kan hernoemen.</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>Undo</source>
        <extracomment>A button of a notification; takes the renames back</extracomment>
        <translation>Herstel</translation>
    </message>
    <message>
        <source>No file was renamed</source>
        <translation>Er is niets hernoemd</translation>
    </message>
    <message numerus="yes">
        <source>No names for %n file(s)</source>
        <translation>
            <numerusform>Geen naam voor %n bestand</numerusform>
            <numerusform>Geen namen voor %n bestanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) ready</source>
        <translation>
            <numerusform>%n naam klaar</numerusform>
            <numerusform>%n namen klaar</numerusform>
        </translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A button of a notification; opens the window with the files</extracomment>
        <translation>Bekijken</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) not renamed</source>
        <translation>
            <numerusform>%n bestand niet hernoemd</numerusform>
            <numerusform>%n bestanden niet hernoemd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) renamed</source>
        <translation>
            <numerusform>%n bestand hernoemd</numerusform>
            <numerusform>%n bestanden hernoemd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rename(s) taken back</source>
        <translation>
            <numerusform>%n hernoeming teruggezet</numerusform>
            <numerusform>%n hernoemingen teruggezet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OnboardingPicture</name>
    <message>
        <source>2024-08-17 - Harbour sunset.HEIC</source>
        <extracomment>File names in a picture, before and after; about as long as these</extracomment>
        <translation>2024-08-17 - Haven bij avond.HEIC</translation>
    </message>
    <message>
        <source>2025-03-14 - Acme - 174.24 EUR.pdf</source>
        <translation>2025-03-14 - Acme - 174,24 EUR.pdf</translation>
    </message>
    <message>
        <source>untitled document (7).docx</source>
        <translation>naamloos document (7).docx</translation>
    </message>
    <message>
        <source>2025-04-08 - Spring minutes.docx</source>
        <translation>2025-04-08 - Notulen voorjaar.docx</translation>
    </message>
    <message>
        <source>contract SIGNED (2).pdf</source>
        <translation>contract GETEKEND (2).pdf</translation>
    </message>
    <message>
        <source>2025-01-31 - Lease - Acme x Korvan.pdf</source>
        <translation>2025-01-31 - Huur - Acme x Korvan.pdf</translation>
    </message>
</context>
<context>
    <name>OpenError</name>
    <message>
        <source>This is not a regular file.</source>
        <extracomment>Error for a folder, pipe, socket or device in place of a document.</extracomment>
        <translation>Dit is geen gewoon bestand.</translation>
    </message>
</context>
<context>
    <name>PermissionStep</name>
    <message>
        <source>Give Varlo access to Finder</source>
        <translation>Geef Varlo toegang tot Finder</translation>
    </message>
    <message>
        <source>Give Varlo permission to control Finder, so it can rename your files in any folder.</source>
        <translation>Geef Varlo toestemming om Finder te besturen, zodat het je bestanden in elke map kan hernoemen.</translation>
    </message>
    <message>
        <source>Control Finder</source>
        <translation>Finder besturen</translation>
    </message>
    <message>
        <source>Rename files in any folder, instantly.</source>
        <translation>Hernoem bestanden in elke map, meteen.</translation>
    </message>
    <message>
        <source>Grant access</source>
        <translation>Toegang geven</translation>
    </message>
    <message>
        <source>You can also grant this later in Settings ▸ Folders.</source>
        <translation>Je kunt dit ook later doen in Instellingen ▸ Mappen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Ga door</translation>
    </message>
</context>
<context>
    <name>ProviderKeySheet</name>
    <message>
        <source>Use your own provider</source>
        <translation>Gebruik je eigen provider</translation>
    </message>
    <message>
        <source>Paste your own API key from your chosen provider.</source>
        <translation>Plak je eigen API-sleutel van de provider van je keuze.</translation>
    </message>
    <message>
        <source>Your own key is in use.</source>
        <translation>Je eigen sleutel is in gebruik.</translation>
    </message>
    <message>
        <source>New API key</source>
        <translation>Nieuwe API-sleutel</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>API-sleutel</translation>
    </message>
    <message>
        <source>Remove Key</source>
        <translation>Sleutel verwijderen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>AI model</source>
        <translation>AI-model</translation>
    </message>
    <message>
        <source>Your files go to this server and nowhere else. A key goes only to the server it was saved for.</source>
        <translation>Je bestanden gaan naar deze server en nergens anders heen. Een sleutel gaat alleen naar de server waarvoor hij is bewaard.</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Uses the server address and the model that were typed</extracomment>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Waiting for an answer…</source>
        <translation>Wachten op antwoord…</translation>
    </message>
</context>
<context>
    <name>ProviderModel</name>
    <message>
        <source>The model answers. It suggested “%1”.</source>
        <extracomment>What came of trying out the model; %1 is the file name that it suggested for a sample</extracomment>
        <translation>Het model antwoordt. Het stelde “%1” voor.</translation>
    </message>
</context>
<context>
    <name>QuickLookSheet</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ReadyStep</name>
    <message>
        <source>Varlo is ready</source>
        <translation>Varlo is klaar</translation>
    </message>
    <message>
        <source>Add your files and Varlo gets to work.</source>
        <translation>Voeg je bestanden toe en Varlo gaat aan de slag.</translation>
    </message>
    <message>
        <source>Start renaming</source>
        <translation>Begin met hernoemen</translation>
    </message>
</context>
<context>
    <name>RenameFailure</name>
    <message>
        <source>Not a valid file name.</source>
        <extracomment>Error when a (possibly user-edited) filename is empty or illegal</extracomment>
        <translation>Geen geldige bestandsnaam.</translation>
    </message>
    <message>
        <source>Too many files with this name.</source>
        <extracomment>Error when no free conflict-numbered filename is available</extracomment>
        <translation>Te veel bestanden met deze naam.</translation>
    </message>
    <message>
        <source>Another Varlo is renaming files. Try again in a moment.</source>
        <extracomment>Error when another running copy of the program did not let this one rename for five seconds</extracomment>
        <translation>Een andere Varlo is bestanden aan het hernoemen. Probeer het zo opnieuw.</translation>
    </message>
    <message>
        <source>Nothing was renamed, because the history could not be written: %1</source>
        <extracomment>Error when a rename could not be noted down before it; %1 is the system&apos;s reason</extracomment>
        <translation>Er is niets hernoemd, omdat de geschiedenis niet geschreven kon worden: %1</translation>
    </message>
    <message>
        <source>The file is not the one that was added any more.</source>
        <extracomment>Error when another file stands under the name of the one that was added to the list</extracomment>
        <translation>Het bestand is niet meer het bestand dat je hebt toegevoegd.</translation>
    </message>
    <message>
        <source>No permission to rename in this folder.</source>
        <extracomment>Shown in a file&apos;s row when the user did not allow access to its folder</extracomment>
        <translation>Geen toestemming om in deze map te hernoemen.</translation>
    </message>
    <message>
        <source>Varlo was given this file without its folder. Add the folder instead.</source>
        <extracomment>Error inside a sandbox, where a file was chosen but not the folder that it is in</extracomment>
        <translation>Varlo kreeg dit bestand zonder de map. Voeg de map toe.</translation>
    </message>
</context>
<context>
    <name>RenameJournal</name>
    <message>
        <source>The list of the latest renames in &quot;%1&quot; was damaged, and some may be missing from the history. The damaged file was kept as &quot;%2&quot;.</source>
        <extracomment>%1 and %2 are paths</extracomment>
        <translation>De lijst met de laatste hernoemingen in &quot;%1&quot; was beschadigd; sommige ontbreken misschien in de geschiedenis. Het beschadigde bestand is bewaard als &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read as the list of the latest renames. It was kept as &quot;%2&quot;.</source>
        <extracomment>%1 and %2 are paths</extracomment>
        <translation>&quot;%1&quot; was niet te lezen als lijst met de laatste hernoemingen. Het is bewaard als &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Renaming &quot;%1&quot; to &quot;%2&quot; was interrupted, and the file was found under neither name in &quot;%3&quot;.</source>
        <extracomment>%1 and %2 are file names, %3 is a folder</extracomment>
        <translation>Het hernoemen van &quot;%1&quot; naar &quot;%2&quot; is onderbroken, en het bestand is onder geen van beide namen gevonden in &quot;%3&quot;.</translation>
    </message>
</context>
<context>
    <name>RenameLog</name>
    <message>
        <source>The file could not be found at its renamed location.</source>
        <extracomment>Error when a rename cannot be reverted because the file is gone</extracomment>
        <translation>Het bestand is niet gevonden op de hernoemde locatie.</translation>
    </message>
    <message>
        <source>The history could not be read: %1</source>
        <extracomment>Error when a rename cannot be reverted; %1 is the system&apos;s reason</extracomment>
        <translation>De geschiedenis kon niet gelezen worden: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Sjablonen</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Watch Folder</source>
        <translation>Gevolgde map</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The setting could not be stored: %1</source>
        <extracomment>%1 is the system&apos;s own reason, as &quot;No space left on device&quot;</extracomment>
        <translation>De instelling kon niet worden bewaard: %1</translation>
    </message>
</context>
<context>
    <name>SheetHeader</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>Sheets</name>
    <message>
        <source>Delete Template…</source>
        <translation>Sjabloon verwijderen…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Rename All</source>
        <translation>Alles hernoemen</translation>
    </message>
    <message>
        <source>The history keeps the newest %1 renames, so the first %2 of these cannot be taken back later.</source>
        <translation>De geschiedenis bewaart de nieuwste %1 hernoemingen; de eerste %2 hiervan zijn later dus niet terug te zetten.</translation>
    </message>
</context>
<context>
    <name>StateFile</name>
    <message>
        <source>It does not exist.</source>
        <translation>Het bestaat niet.</translation>
    </message>
    <message>
        <source>It is a link to a file that does not exist.</source>
        <translation>Het is een koppeling naar een bestand dat niet bestaat.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Het is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Het is te groot.</translation>
    </message>
</context>
<context>
    <name>SupportedFormats</name>
    <message>
        <source>Documents</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Text &amp; data</source>
        <translation>Tekst en gegevens</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
</context>
<context>
    <name>SupportedFormatsLine</name>
    <message>
        <source>Varlo supports %1+ file types</source>
        <translation>Varlo ondersteunt %1+ bestandstypen</translation>
    </message>
    <message>
        <source>View all</source>
        <translation>Alles bekijken</translation>
    </message>
</context>
<context>
    <name>TagsPane</name>
    <message>
        <source>Add Finder tags to renamed files</source>
        <translation>Finder-tags toevoegen aan hernoemde bestanden</translation>
    </message>
    <message>
        <source>When on, Varlo suggests a few keyword tags for each file and writes them as Finder tags when you rename. You&apos;ll see the tags before they&apos;re applied.</source>
        <translation>Als dit aan staat, stelt Varlo per bestand een paar trefwoorden voor en schrijft ze bij het hernoemen als Finder-tags. Je ziet de tags voordat ze worden toegepast.</translation>
    </message>
    <message>
        <source>2025-03-14 - Acme - Hosting plan - 174.24 EUR.pdf</source>
        <extracomment>A file name, as an example of what Varlo makes</extracomment>
        <translation>2025-03-14 - Acme - Hostingpakket - 174,24 EUR.pdf</translation>
    </message>
    <message>
        <source>invoice,hosting,acme</source>
        <extracomment>Keyword tags of a file, as an example, with commas between them</extracomment>
        <translation>factuur,hosting,acme</translation>
    </message>
</context>
<context>
    <name>TemplateEditorSection</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Naamloos</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Veld toevoegen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Delete Template…</source>
        <translation>Sjabloon verwijderen…</translation>
    </message>
</context>
<context>
    <name>TemplateField</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Leverancier</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Bedrag</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Partijen</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>Documenttype</translation>
    </message>
</context>
<context>
    <name>TemplatePicker</name>
    <message>
        <source>Template:</source>
        <translation>Sjabloon:</translation>
    </message>
    <message>
        <source>Choose template</source>
        <translation>Sjabloon kiezen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>The AI picks the name structure</source>
        <translation>De AI kiest de opbouw van de naam</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Sjablonen</translation>
    </message>
</context>
<context>
    <name>TemplatePreview</name>
    <message>
        <source>New Template…</source>
        <translation>Nieuw sjabloon…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standaardinstellingen</translation>
    </message>
    <message>
        <source>Delete Template…</source>
        <translation>Sjabloon verwijderen…</translation>
    </message>
    <message>
        <source>No fixed template — the AI picks the best name structure for each file.</source>
        <translation>Geen vast sjabloon: de AI kiest voor elk bestand de beste opbouw.</translation>
    </message>
</context>
<context>
    <name>TemplatesPane</name>
    <message>
        <source>How suggested names are built. Pick one per batch in the main window.</source>
        <translation>Hoe voorgestelde namen worden opgebouwd. Kies er per reeks een in het hoofdvenster.</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standaardinstellingen</translation>
    </message>
    <message>
        <source>No fixed template — the AI picks the best name structure for each file.</source>
        <translation>Geen vast sjabloon: de AI kiest voor elk bestand de beste opbouw.</translation>
    </message>
    <message>
        <source>New Template…</source>
        <translation>Nieuw sjabloon…</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>This type of file is not supported yet.</source>
        <translation>Dit type bestand wordt nog niet ondersteund.</translation>
    </message>
    <message>
        <source>%1 of %2 files, about %3:%4 left</source>
        <translation>%1 van %2 bestanden, nog ongeveer %3:%4</translation>
    </message>
    <message>
        <source>there is no preference “%1”</source>
        <translation>er is geen voorkeur ‘%1’</translation>
    </message>
    <message>
        <source>; did you mean “%1”?</source>
        <translation>; bedoelde je ‘%1’?</translation>
    </message>
    <message>
        <source>is either true or false</source>
        <translation>is true of false</translation>
    </message>
    <message>
        <source>is one of system, en, nl and es</source>
        <translation>is system, en, nl of es</translation>
    </message>
    <message>
        <source>is a folder that exists</source>
        <translation>is een map die bestaat</translation>
    </message>
    <message>
        <source>the preference could not be stored: %1</source>
        <translation>de voorkeur kon niet bewaard worden: %1</translation>
    </message>
    <message>
        <source>%1, %2 × %3, %4 bytes</source>
        <translation>%1, %2 × %3, %4 bytes</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Geen tekst gevonden</translation>
    </message>
    <message>
        <source>%1 is not a folder that Varlo may rename in</source>
        <translation>%1 is geen map waarin Varlo mag hernoemen</translation>
    </message>
    <message>
        <source>the history could not be read: %1</source>
        <translation>de geschiedenis kon niet gelezen worden: %1</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>teruggezet</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Oude naam</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nieuwe naam</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; give --yes to clear without asking</source>
        <translation>er is geen terminal om het op te vragen; geef --yes om zonder vragen te wissen</translation>
    </message>
    <message>
        <source>Clear the history? No file changes, but no rename in it can be taken back any more.</source>
        <translation>De geschiedenis wissen? Er verandert geen bestand, maar wat erin staat kan daarna niet meer worden teruggezet.</translation>
    </message>
    <message>
        <source>the history could not be cleared: %1</source>
        <translation>de geschiedenis kon niet gewist worden: %1</translation>
    </message>
    <message>
        <source>the history has no such rename</source>
        <translation>deze hernoeming staat niet in de geschiedenis</translation>
    </message>
    <message>
        <source>there is no rename to take back</source>
        <translation>er is niets om terug te zetten</translation>
    </message>
    <message>
        <source>API key (not shown): </source>
        <translation>API-sleutel (wordt niet getoond): </translation>
    </message>
    <message>
        <source>No API key set.</source>
        <translation>Geen API-sleutel ingesteld.</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it and try again.</source>
        <translation>De sleutelbos is vergrendeld. Ontgrendel hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The secret store does not answer.</source>
        <translation>De sleutelopslag geeft geen antwoord.</translation>
    </message>
    <message>
        <source>A key is stored for %1.</source>
        <translation>Er is een sleutel bewaard voor %1.</translation>
    </message>
    <message>
        <source>no key was given</source>
        <translation>er is geen sleutel gegeven</translation>
    </message>
    <message>
        <source>the window (varlo-window) is not installed; see `varlo --help`</source>
        <translation>het venster (varlo-window) is niet geïnstalleerd; zie `varlo --help`</translation>
    </message>
    <message>
        <source>(stays as it is)</source>
        <translation>(blijft zoals het is)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>the history keeps the newest %1 renames, so the first %2 of these cannot be taken back later</source>
        <translation>de geschiedenis bewaart de nieuwste %1 hernoemingen; de eerste %2 hiervan zijn later dus niet terug te zetten</translation>
    </message>
    <message>
        <source>Rename as shown?</source>
        <translation>Zo hernoemen?</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; give --yes to rename without asking</source>
        <translation>er is geen terminal om het op te vragen; geef --yes om zonder vragen te hernoemen</translation>
    </message>
    <message>
        <source>Files renamed: %1. `varlo undo --last %1` takes that back.</source>
        <translation>Bestanden hernoemd: %1. Met `varlo undo --last %1` zet je dat terug.</translation>
    </message>
    <message>
        <source>Suggested name</source>
        <translation>Voorgestelde naam</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>the templates could not be stored: %1</source>
        <translation>de sjablonen konden niet bewaard worden: %1</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Velden</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>the built-in templates cannot be removed</source>
        <translation>ingebouwde sjablonen kunnen niet worden verwijderd</translation>
    </message>
    <message>
        <source>the folder %1 is gone</source>
        <translation>de map %1 is weg</translation>
    </message>
    <message>
        <source>Watching %1 until Ctrl-C.</source>
        <translation>%1 wordt in de gaten gehouden tot Ctrl-C.</translation>
    </message>
    <message>
        <source>the suggestions can no longer be printed</source>
        <translation>de voorstellen kunnen niet meer worden afgedrukt</translation>
    </message>
    <message>
        <source>too much is watched on this machine already (raise fs.inotify.max_user_watches and fs.inotify.max_user_instances)</source>
        <translation>op deze computer wordt al te veel in de gaten gehouden (verhoog fs.inotify.max_user_watches en fs.inotify.max_user_instances)</translation>
    </message>
    <message>
        <source>there is no template with the id “%1”</source>
        <translation>er is geen sjabloon met de id ‘%1’</translation>
    </message>
    <message>
        <source>the part that asks a model is not installed</source>
        <translation>het onderdeel dat een model vraagt, is niet geïnstalleerd</translation>
    </message>
    <message>
        <source>store a key with `varlo key set`, or use --offline; a model server on this machine takes any key</source>
        <translation>bewaar een sleutel met `varlo key set`, of gebruik --offline; een modelserver op deze computer neemt elke sleutel</translation>
    </message>
    <message>
        <source>Nothing here Varlo can rename.</source>
        <translation>Hier is niets wat Varlo kan hernoemen.</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>What has to be typed for yes; the capital letter marks what a mere Return means</extracomment>
        <translation>[j/N]</translation>
    </message>
    <message>
        <source>y</source>
        <extracomment>The letter that means yes</extracomment>
        <translation>j</translation>
    </message>
    <message>
        <source>this session has no notifications to show</source>
        <translation>deze sessie kan geen meldingen tonen</translation>
    </message>
    <message>
        <source>The settings do not fit; see `varlo doctor`.</source>
        <translation>De instellingen kloppen niet; zie `varlo doctor`.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Filename language:</source>
        <translation>Taal van bestandsnaam:</translation>
    </message>
    <message>
        <source>Filename language</source>
        <translation>Taal van bestandsnaam</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>What was received does not come from Varlo.</source>
        <extracomment>Error of the check for updates when what came was not signed by the makers of the program</extracomment>
        <translation>Wat is ontvangen, komt niet van Varlo.</translation>
    </message>
    <message>
        <source>What was received cannot be understood.</source>
        <translation>Wat is ontvangen, is niet te begrijpen.</translation>
    </message>
    <message>
        <source>No answer came in time.</source>
        <translation>Er kwam niet op tijd antwoord.</translation>
    </message>
</context>
<context>
    <name>UpdateSheet</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>Pagina openen</translation>
    </message>
</context>
<context>
    <name>Varlo::AppUIState</name>
    <message>
        <source>Files Varlo can name</source>
        <translation>Bestanden die Varlo een naam kan geven</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle bestanden</translation>
    </message>
</context>
<context>
    <name>Varlo::HistoryView</name>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
</context>
<context>
    <name>Varlo::UpdaterModel</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Zoeken naar updates…</translation>
    </message>
    <message>
        <source>Updates could not be checked.</source>
        <translation>Er kon niet naar updates worden gezocht.</translation>
    </message>
    <message>
        <source>Varlo %1 is available.</source>
        <extracomment>%1 is a version, as 1.2.0</extracomment>
        <translation>Varlo %1 is beschikbaar.</translation>
    </message>
    <message>
        <source>Varlo is up to date.</source>
        <translation>Varlo is bijgewerkt.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Je hebt versie %1.</translation>
    </message>
</context>
<context>
    <name>WatchPane</name>
    <message>
        <source>Suggest names for new files automatically</source>
        <translation>Automatisch namen voorstellen voor nieuwe bestanden</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Also include files already in this folder</source>
        <translation>Ook bestanden die al in deze map staan</translation>
    </message>
    <message>
        <source>New files appear in the main window as suggestions — nothing is renamed until you review.</source>
        <translation>Nieuwe bestanden verschijnen als voorstel in het hoofdvenster. Er wordt niets hernoemd voordat je het hebt bekeken.</translation>
    </message>
</context>
<context>
    <name>WatcherStrip</name>
    <message>
        <source>is being watched</source>
        <translation>wordt in de gaten gehouden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actief</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Varlo</source>
        <translation>Welkom bij Varlo</translation>
    </message>
    <message>
        <source>Varlo suggests a new name based on what’s in your files.</source>
        <translation>Varlo stelt een nieuwe naam voor op basis van wat er in je bestanden staat.</translation>
    </message>
    <message>
        <source>AI reads your files and names them</source>
        <translation>AI leest je bestanden en geeft ze een naam</translation>
    </message>
    <message>
        <source>Dutch, Spanish and English</source>
        <translation>Nederlands, Spaans en Engels</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Aan de slag</translation>
    </message>
</context>
</TS>
