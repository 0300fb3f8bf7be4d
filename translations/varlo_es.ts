<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Version </source>
        <translation>Versión </translation>
    </message>
    <message>
        <source>Renames files fast based on their contents.</source>
        <translation>Renombra archivos rápidamente según su contenido.</translation>
    </message>
    <message>
        <source>Use your own provider</source>
        <translation>Usa tu propio proveedor</translation>
    </message>
    <message>
        <source>Your own key is in use.</source>
        <translation>Se está usando tu propia clave.</translation>
    </message>
    <message>
        <source>No API key set.</source>
        <translation>No hay ninguna clave de API.</translation>
    </message>
    <message>
        <source>Supported formats</source>
        <translation>Formatos compatibles</translation>
    </message>
    <message>
        <source>The file types Varlo can read.</source>
        <translation>Los tipos de archivo que Varlo puede leer.</translation>
    </message>
    <message>
        <source>View List</source>
        <translation>Ver lista</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Questions, problems, or feedback.</source>
        <translation>Preguntas, problemas o comentarios.</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contactar con soporte</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
</context>
<context>
    <name>AppMenu</name>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <extracomment>Read aloud in place of what a button does</extracomment>
        <translation>No disponible ahora</translation>
    </message>
</context>
<context>
    <name>BottomBar</name>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Files done of all</source>
        <translation>Archivos listos del total</translation>
    </message>
    <message>
        <source>Size of all files</source>
        <translation>Tamaño de todos los archivos</translation>
    </message>
    <message>
        <source>Time of the latest suggestions</source>
        <translation>Duración de las últimas sugerencias</translation>
    </message>
    <message>
        <source>Suggest Names</source>
        <translation>Sugerir nombres</translation>
    </message>
    <message>
        <source>Rename All</source>
        <translation>Renombrar todo</translation>
    </message>
</context>
<context>
    <name>Choosers</name>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Select Folder…</source>
        <translation>Seleccionar carpeta…</translation>
    </message>
    <message>
        <source>Choose a folder to let Varlo rename the files inside it.</source>
        <extracomment>Open-panel message for granting access to one specific folder</extracomment>
        <translation>Elige una carpeta para que Varlo pueda renombrar los archivos que contiene.</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Open-panel confirm button granting folder access</extracomment>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Choose</source>
        <extracomment>Confirm button of the chooser of the watched folder</extracomment>
        <translation>Elegir</translation>
    </message>
</context>
<context>
    <name>ClaudeNameSuggester</name>
    <message>
        <source>The request was cancelled.</source>
        <translation>La solicitud se canceló.</translation>
    </message>
    <message>
        <source>The connection was closed before an answer came.</source>
        <translation>La conexión se cerró antes de recibir respuesta.</translation>
    </message>
    <message>
        <source>The model did not answer within %1 seconds.</source>
        <extracomment>Shown in a file&apos;s row; %1 is a number of seconds</extracomment>
        <translation>El modelo no respondió en %1 segundos.</translation>
    </message>
    <message>
        <source>The model&apos;s reply is too long to be one.</source>
        <translation>La respuesta del modelo es demasiado larga.</translation>
    </message>
    <message>
        <source>The model&apos;s reply could not be read: %1.</source>
        <extracomment>Shown in a file&apos;s row; %1 says what is wrong with the reply&apos;s JSON</extracomment>
        <translation>No se pudo leer la respuesta del modelo: %1.</translation>
    </message>
    <message>
        <source>it has no well-formed list of content blocks</source>
        <translation>no tiene una lista válida de bloques de contenido</translation>
    </message>
</context>
<context>
    <name>ConfiguredNameSuggester</name>
    <message>
        <source>The part of Varlo that asks a model is not installed.</source>
        <translation>La parte de Varlo que consulta un modelo no está instalada.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir en %1</translation>
    </message>
    <message>
        <source>make %1 a folder of yours</source>
        <translation>haz que %1 sea una carpeta tuya</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>Clave de API</translation>
    </message>
    <message>
        <source>stored for %1</source>
        <translation>guardada para %1</translation>
    </message>
    <message>
        <source>none for %1</source>
        <translation>ninguna para %1</translation>
    </message>
    <message>
        <source>store one with `varlo key set`, or use --offline</source>
        <translation>guarda una con `varlo key set` o usa --offline</translation>
    </message>
    <message>
        <source>the keyring is locked</source>
        <translation>el llavero está bloqueado</translation>
    </message>
    <message>
        <source>unlock the keyring, for example by logging in to the desktop</source>
        <translation>desbloquea el llavero, por ejemplo iniciando sesión en el escritorio</translation>
    </message>
    <message>
        <source>the secret store does not answer</source>
        <translation>el almacén de secretos no responde</translation>
    </message>
    <message>
        <source>restart the desktop&apos;s keyring service</source>
        <translation>reinicia el servicio de llavero del escritorio</translation>
    </message>
    <message>
        <source>Sandbox</source>
        <translation>Aislamiento</translation>
    </message>
    <message>
        <source>files are read without one</source>
        <translation>los archivos se leen sin él</translation>
    </message>
    <message>
        <source>files are read with %1 only</source>
        <translation>los archivos se leen solo con %1</translation>
    </message>
    <message>
        <source>use a kernel of version 5.13 or newer with Landlock and seccomp</source>
        <translation>usa un núcleo 5.13 o posterior con Landlock y seccomp</translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation>Reconocimiento</translation>
    </message>
    <message>
        <source>English, Dutch, Spanish</source>
        <translation>inglés, neerlandés, español</translation>
    </message>
    <message>
        <source>no language data for %1</source>
        <translation>no hay datos de idioma para %1</translation>
    </message>
    <message>
        <source>install %1</source>
        <translation>instala %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>every format can be read</source>
        <translation>se pueden leer todos los formatos</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>no hay decodificador para %1</translation>
    </message>
    <message>
        <source>install Qt&apos;s image formats, and libvips with its loaders</source>
        <translation>instala los formatos de imagen de Qt y libvips con sus cargadores</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Lectores</translation>
    </message>
    <message>
        <source>install Varlo again</source>
        <translation>vuelve a instalar Varlo</translation>
    </message>
    <message>
        <source>not there: %1</source>
        <translation>no está: %1</translation>
    </message>
    <message>
        <source>install Varlo again, with the libraries that it names</source>
        <translation>vuelve a instalar Varlo, con las bibliotecas que indica</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Endpoint</source>
        <translation>Dirección del modelo</translation>
    </message>
    <message>
        <source>it cannot be used</source>
        <translation>no se puede usar</translation>
    </message>
    <message>
        <source>give another one with `varlo config set endpoint URL`</source>
        <translation>indica otra con `varlo config set endpoint URL`</translation>
    </message>
    <message>
        <source>Secret store</source>
        <translation>Almacén de secretos</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop your files here</source>
        <translation>Suelta tus archivos aquí</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Drop your files here</source>
        <translation>Suelta tus archivos aquí</translation>
    </message>
    <message>
        <source>Varlo reads your files and suggests a new name based on their contents</source>
        <translation>Varlo lee tus archivos y sugiere un nombre nuevo según su contenido</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Select Folder…</source>
        <translation>Seleccionar carpeta…</translation>
    </message>
</context>
<context>
    <name>Endpoint</name>
    <message>
        <source>This is not an address. It looks like https://host/path.</source>
        <extracomment>About the address of the model&apos;s interface, as typed by the user</extracomment>
        <translation>Esto no es una dirección. Tiene la forma https://servidor/ruta.</translation>
    </message>
    <message>
        <source>The address must start with https://.</source>
        <extracomment>About the address of the model&apos;s interface, as typed by the user</extracomment>
        <translation>La dirección debe empezar por https://.</translation>
    </message>
    <message>
        <source>http:// is accepted for this computer only. Use https:// for any other.</source>
        <extracomment>About the address of the model&apos;s interface; http would carry the API key unencrypted</extracomment>
        <translation>http:// solo se acepta para este equipo. Usa https:// para cualquier otro.</translation>
    </message>
    <message>
        <source>The address must not hold a user name or password.</source>
        <extracomment>About the address of the model&apos;s interface, as typed by the user</extracomment>
        <translation>La dirección no debe llevar usuario ni contraseña.</translation>
    </message>
    <message>
        <source>The address must not hold “?” or “#”.</source>
        <extracomment>About the address of the model&apos;s interface; &quot;?&quot; and &quot;#&quot; start parts that cannot be used here</extracomment>
        <translation>La dirección no debe llevar «?» ni «#».</translation>
    </message>
</context>
<context>
    <name>Extraction</name>
    <message>
        <source>This file could not be read safely.</source>
        <extracomment>Error for a file whose reader died or answered nonsense.</extracomment>
        <translation>Este archivo no se pudo leer de forma segura.</translation>
    </message>
    <message>
        <source>Reading this file took too long.</source>
        <translation>La lectura de este archivo tardó demasiado.</translation>
    </message>
    <message>
        <source>The part that reads such files is not installed.</source>
        <extracomment>Error when a file of the program itself is missing.</extracomment>
        <translation>La parte que lee estos archivos no está instalada.</translation>
    </message>
    <message>
        <source>This system cannot lock the reading of files in completely; `varlo doctor` tells what is missing.</source>
        <translation>Este sistema no puede aislar del todo la lectura de archivos; `varlo doctor` indica qué falta.</translation>
    </message>
    <message>
        <source>This file is online-only. Download it in its cloud app first, then try again.</source>
        <extracomment>Error for cloud placeholder files whose content is not on this computer.</extracomment>
        <translation>Solo está en línea. Descárgalo en su app de la nube y vuelve a intentarlo.</translation>
    </message>
</context>
<context>
    <name>FieldChip</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a field in a template: %1 of %2</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Remove Field</source>
        <translation>Quitar campo</translation>
    </message>
</context>
<context>
    <name>FileItem</name>
    <message>
        <source>Pending</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Analyzing…</source>
        <translation>Analizando…</translation>
    </message>
    <message>
        <source>Suggested</source>
        <translation>Sugerido</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>Already renamed</source>
        <translation>Ya renombrado</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Sin texto</translation>
    </message>
    <message>
        <source>Not supported yet</source>
        <translation>Aún no compatible</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
</context>
<context>
    <name>FileRow</name>
    <message>
        <source>was</source>
        <translation>antes:</translation>
    </message>
</context>
<context>
    <name>FileRowNaming</name>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
</context>
<context>
    <name>FilenameLanguage</name>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
</context>
<context>
    <name>FinderRenameError</name>
    <message>
        <source>Finder could not rename the file.</source>
        <extracomment>Fallback error when the Finder rename script fails without a message</extracomment>
        <translation>Finder no pudo renombrar el archivo.</translation>
    </message>
    <message>
        <source>Allow Varlo to control Finder to rename here (Settings ▸ Folders).</source>
        <extracomment>Error when the Finder-control (Automation) permission is missing</extracomment>
        <translation>Permite que Varlo controle Finder para renombrar aquí (Ajustes ▸ Carpetas).</translation>
    </message>
</context>
<context>
    <name>FolderAccess</name>
    <message>
        <source>To rename files here, allow access to this folder.</source>
        <extracomment>Open-panel message asking for folder access before renaming</extracomment>
        <translation>Para renombrar archivos aquí, permite el acceso a esta carpeta.</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Open-panel confirm button granting folder access</extracomment>
        <translation>Permitir</translation>
    </message>
</context>
<context>
    <name>FoldersPane</name>
    <message>
        <source>Full access</source>
        <translation>Acceso completo</translation>
    </message>
    <message>
        <source>Varlo renames by controlling Finder — one quick “Allow” lets it rename files anywhere, with no folder picking.</source>
        <translation>Varlo renombra controlando Finder: con un solo «Permitir» puede renombrar en cualquier lugar, sin elegir carpetas.</translation>
    </message>
    <message>
        <source>Grant access to entire Finder (so all files)</source>
        <translation>Dar acceso a todo Finder (es decir, a todos los archivos)</translation>
    </message>
    <message>
        <source>Varlo never reads your whole disk — it only opens the files you give it and asks Finder to do the renaming. Change this anytime in System Settings ▸ Privacy &amp; Security ▸ Automation.</source>
        <translation>Varlo nunca lee todo tu disco: solo abre los archivos que le das y pide a Finder que los renombre. Puedes cambiarlo cuando quieras en Ajustes del Sistema ▸ Privacidad y seguridad ▸ Automatización.</translation>
    </message>
    <message>
        <source>Or allow specific folders</source>
        <translation>O permite carpetas concretas</translation>
    </message>
    <message>
        <source>Prefer not to grant Finder control? Add the folders you rename in, and Varlo won&apos;t ask each time.</source>
        <translation>¿Prefieres no dar control de Finder? Añade las carpetas donde renombras y Varlo no preguntará cada vez.</translation>
    </message>
    <message>
        <source>Choose a folder to let Varlo rename the files inside it.</source>
        <translation>Elige una carpeta para que Varlo pueda renombrar los archivos que contiene.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>No folders allowed yet.</source>
        <translation>Aún no hay carpetas permitidas.</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Coming soon</source>
        <translation>Próximamente</translation>
    </message>
</context>
<context>
    <name>FormatsSheet</name>
    <message>
        <source>Supported formats</source>
        <translation>Formatos compatibles</translation>
    </message>
    <message>
        <source>Coming soon</source>
        <translation>Próximamente</translation>
    </message>
</context>
<context>
    <name>GlobalMenu</name>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>GrantedMark</name>
    <message>
        <source>Granted</source>
        <translation>Concedido</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>was</source>
        <translation>antes:</translation>
    </message>
    <message>
        <source>Reverted</source>
        <translation>Revertido</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
</context>
<context>
    <name>HistorySheet</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Search history</source>
        <translation>Buscar en el historial</translation>
    </message>
    <message>
        <source>No renames yet</source>
        <translation>Aún no hay cambios de nombre</translation>
    </message>
    <message>
        <source> selected</source>
        <translation> seleccionados</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Deseleccionar</translation>
    </message>
    <message>
        <source>Revert Selected</source>
        <translation>Revertir selección</translation>
    </message>
    <message>
        <source>Renames saved:</source>
        <translation>Cambios guardados:</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Vaciar historial…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
</context>
<context>
    <name>JsonPreferenceStore</name>
    <message>
        <source>The settings in &quot;%1&quot; are damaged and could not be set aside: %2 Nothing can be saved until that is done.</source>
        <translation>Los ajustes de &quot;%1&quot; están dañados y no se pudieron apartar: %2 Hasta que se haga, no se puede guardar nada.</translation>
    </message>
    <message>
        <source>The settings in &quot;%1&quot; were damaged. The damaged file was kept as &quot;%2&quot;.</source>
        <translation>Los ajustes de &quot;%1&quot; estaban dañados. El archivo dañado se conservó como &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>A part of the settings in &quot;%1&quot; was damaged. A copy as it was is in &quot;%2&quot;.</source>
        <translation>Una parte de los ajustes de &quot;%1&quot; estaba dañada. Hay una copia tal como estaba en &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The settings in &quot;%1&quot; are damaged: %2</source>
        <translation>Los ajustes de &quot;%1&quot; están dañados: %2</translation>
    </message>
    <message>
        <source>The settings in &quot;%1&quot; could not be read, and the default settings hold: %2</source>
        <translation>No se pudieron leer los ajustes de &quot;%1&quot; y valen los predeterminados: %2</translation>
    </message>
</context>
<context>
    <name>KeyMissingBanner</name>
    <message>
        <source>No API key set.</source>
        <translation>No hay ninguna clave de API.</translation>
    </message>
    <message>
        <source>Paste your own API key from your chosen provider.</source>
        <translation>Pega tu propia clave de API del proveedor que elijas.</translation>
    </message>
    <message>
        <source>Use your own provider</source>
        <translation>Usa tu propio proveedor</translation>
    </message>
</context>
<context>
    <name>LanguagePane</name>
    <message>
        <source>Interface language</source>
        <translation>Idioma de la interfaz</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Filename language is set in the main window.</source>
        <translation>El idioma de los nombres se elige en la ventana principal.</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Not available now</source>
        <extracomment>Read aloud in place of an entry&apos;s keys</extracomment>
        <translation>No disponible ahora</translation>
    </message>
</context>
<context>
    <name>NameCard</name>
    <message>
        <source>was</source>
        <translation>antes:</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>Suggested name</source>
        <translation>Nombre sugerido</translation>
    </message>
    <message>
        <source>Type a name…</source>
        <translation>Escribe un nombre…</translation>
    </message>
</context>
<context>
    <name>NameSuggestionError</name>
    <message>
        <source>The API key holds characters that cannot be sent. Save it again.</source>
        <translation>La clave de API contiene caracteres que no se pueden enviar. Guárdala de nuevo.</translation>
    </message>
    <message>
        <source>No API key set.</source>
        <extracomment>Shown in a file&apos;s row when the user has not stored a key for the model yet</extracomment>
        <translation>No hay ninguna clave de API.</translation>
    </message>
    <message>
        <source>The keyring that holds your API key is locked. Unlock it and try again.</source>
        <extracomment>Shown in a file&apos;s row when the desktop&apos;s password store has to be unlocked first</extracomment>
        <translation>El llavero que guarda tu clave de API está bloqueado. Desbloquéalo y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Unexpected response from the model.</source>
        <extracomment>Shown in a file&apos;s row when the model&apos;s reply holds no usable file name</extracomment>
        <translation>Respuesta inesperada del modelo.</translation>
    </message>
    <message>
        <source>The file has no readable content.</source>
        <extracomment>Shown when the model says that there is nothing to name the file from</extracomment>
        <translation>El archivo no tiene contenido legible.</translation>
    </message>
</context>
<context>
    <name>NameTemplate</name>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Recibo</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Contract</source>
        <translation>Contrato</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
</context>
<context>
    <name>NothingRenameableBanner</name>
    <message>
        <source>Nothing here Varlo can rename.</source>
        <translation>Aquí no hay nada que Varlo pueda renombrar.</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>Undo</source>
        <extracomment>A button of a notification; takes the renames back</extracomment>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>No file was renamed</source>
        <translation>No se renombró ningún archivo</translation>
    </message>
    <message numerus="yes">
        <source>No names for %n file(s)</source>
        <translation>
            <numerusform>Sin nombre para %n archivo</numerusform>
            <numerusform>Sin nombre para %n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) ready</source>
        <translation>
            <numerusform>%n nombre listo</numerusform>
            <numerusform>%n nombres listos</numerusform>
        </translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A button of a notification; opens the window with the files</extracomment>
        <translation>Revisar</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) not renamed</source>
        <translation>
            <numerusform>%n archivo sin renombrar</numerusform>
            <numerusform>%n archivos sin renombrar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) renamed</source>
        <translation>
            <numerusform>%n archivo renombrado</numerusform>
            <numerusform>%n archivos renombrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rename(s) taken back</source>
        <translation>
            <numerusform>%n cambio revertido</numerusform>
            <numerusform>%n cambios revertidos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OnboardingPicture</name>
    <message>
        <source>2024-08-17 - Harbour sunset.HEIC</source>
        <extracomment>File names in a picture, before and after; about as long as these</extracomment>
        <translation>2024-08-17 - Puerto al ocaso.HEIC</translation>
    </message>
    <message>
        <source>2025-03-14 - Acme - 174.24 EUR.pdf</source>
        <translation>2025-03-14 - Acme - 174,24 EUR.pdf</translation>
    </message>
    <message>
        <source>untitled document (7).docx</source>
        <translation>documento sin título (7).docx</translation>
    </message>
    <message>
        <source>2025-04-08 - Spring minutes.docx</source>
        <translation>2025-04-08 - Acta primavera.docx</translation>
    </message>
    <message>
        <source>contract SIGNED (2).pdf</source>
        <translation>contrato FIRMADO (2).pdf</translation>
    </message>
    <message>
        <source>2025-01-31 - Lease - Acme x Korvan.pdf</source>
        <translation>2025-01-31 - Alquiler - Korvan.pdf</translation>
    </message>
</context>
<context>
    <name>OpenError</name>
    <message>
        <source>This is not a regular file.</source>
        <extracomment>Error for a folder, pipe, socket or device in place of a document.</extracomment>
        <translation>Esto no es un archivo normal.</translation>
    </message>
</context>
<context>
    <name>PermissionStep</name>
    <message>
        <source>Give Varlo access to Finder</source>
        <translation>Dale a Varlo acceso a Finder</translation>
    </message>
    <message>
        <source>Give Varlo permission to control Finder, so it can rename your files in any folder.</source>
        <translation>Da permiso a Varlo para controlar Finder y podrá renombrar tus archivos en cualquier carpeta.</translation>
    </message>
    <message>
        <source>Control Finder</source>
        <translation>Controlar Finder</translation>
    </message>
    <message>
        <source>Rename files in any folder, instantly.</source>
        <translation>Renombra archivos en cualquier carpeta, al instante.</translation>
    </message>
    <message>
        <source>Grant access</source>
        <translation>Dar acceso</translation>
    </message>
    <message>
        <source>You can also grant this later in Settings ▸ Folders.</source>
        <translation>También puedes concederlo más tarde en Ajustes ▸ Carpetas.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>ProviderKeySheet</name>
    <message>
        <source>Use your own provider</source>
        <translation>Usa tu propio proveedor</translation>
    </message>
    <message>
        <source>Paste your own API key from your chosen provider.</source>
        <translation>Pega tu propia clave de API del proveedor que elijas.</translation>
    </message>
    <message>
        <source>Your own key is in use.</source>
        <translation>Se está usando tu propia clave.</translation>
    </message>
    <message>
        <source>New API key</source>
        <translation>Nueva clave de API</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>Clave de API</translation>
    </message>
    <message>
        <source>Remove Key</source>
        <translation>Quitar clave</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>AI model</source>
        <translation>Modelo de IA</translation>
    </message>
    <message>
        <source>Your files go to this server and nowhere else. A key goes only to the server it was saved for.</source>
        <translation>Tus archivos van a este servidor y a ningún otro sitio. Una clave solo va al servidor para el que se guardó.</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Uses the server address and the model that were typed</extracomment>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Waiting for an answer…</source>
        <translation>Esperando respuesta…</translation>
    </message>
</context>
<context>
    <name>ProviderModel</name>
    <message>
        <source>The model answers. It suggested “%1”.</source>
        <extracomment>What came of trying out the model; %1 is the file name that it suggested for a sample</extracomment>
        <translation>El modelo responde. Ha sugerido “%1”.</translation>
    </message>
</context>
<context>
    <name>QuickLookSheet</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>ReadyStep</name>
    <message>
        <source>Varlo is ready</source>
        <translation>Varlo está listo</translation>
    </message>
    <message>
        <source>Add your files and Varlo gets to work.</source>
        <translation>Añade tus archivos y Varlo se pone a trabajar.</translation>
    </message>
    <message>
        <source>Start renaming</source>
        <translation>Empezar a renombrar</translation>
    </message>
</context>
<context>
    <name>RenameFailure</name>
    <message>
        <source>Not a valid file name.</source>
        <extracomment>Error when a (possibly user-edited) filename is empty or illegal</extracomment>
        <translation>No es un nombre de archivo válido.</translation>
    </message>
    <message>
        <source>Too many files with this name.</source>
        <extracomment>Error when no free conflict-numbered filename is available</extracomment>
        <translation>Demasiados archivos con este nombre.</translation>
    </message>
    <message>
        <source>Another Varlo is renaming files. Try again in a moment.</source>
        <extracomment>Error when another running copy of the program did not let this one rename for five seconds</extracomment>
        <translation>Otro Varlo está renombrando archivos. Vuelve a intentarlo en un momento.</translation>
    </message>
    <message>
        <source>Nothing was renamed, because the history could not be written: %1</source>
        <extracomment>Error when a rename could not be noted down before it; %1 is the system&apos;s reason</extracomment>
        <translation>No se renombró nada, porque no se pudo escribir el historial: %1</translation>
    </message>
    <message>
        <source>The file is not the one that was added any more.</source>
        <extracomment>Error when another file stands under the name of the one that was added to the list</extracomment>
        <translation>El archivo ya no es el que añadiste.</translation>
    </message>
    <message>
        <source>No permission to rename in this folder.</source>
        <extracomment>Shown in a file&apos;s row when the user did not allow access to its folder</extracomment>
        <translation>Sin permiso para renombrar en esta carpeta.</translation>
    </message>
    <message>
        <source>Varlo was given this file without its folder. Add the folder instead.</source>
        <extracomment>Error inside a sandbox, where a file was chosen but not the folder that it is in</extracomment>
        <translation>Varlo recibió este archivo sin su carpeta. Añade la carpeta.</translation>
    </message>
</context>
<context>
    <name>RenameJournal</name>
    <message>
        <source>The list of the latest renames in &quot;%1&quot; was damaged, and some may be missing from the history. The damaged file was kept as &quot;%2&quot;.</source>
        <extracomment>%1 and %2 are paths</extracomment>
        <translation>La lista de los últimos cambios de nombre en &quot;%1&quot; estaba dañada y puede que falten algunos en el historial. El archivo dañado se conservó como &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read as the list of the latest renames. It was kept as &quot;%2&quot;.</source>
        <extracomment>%1 and %2 are paths</extracomment>
        <translation>&quot;%1&quot; no se pudo leer como lista de los últimos cambios de nombre. Se conservó como &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Renaming &quot;%1&quot; to &quot;%2&quot; was interrupted, and the file was found under neither name in &quot;%3&quot;.</source>
        <extracomment>%1 and %2 are file names, %3 is a folder</extracomment>
        <translation>El cambio de &quot;%1&quot; a &quot;%2&quot; se interrumpió y el archivo no apareció con ninguno de los dos nombres en &quot;%3&quot;.</translation>
    </message>
</context>
<context>
    <name>RenameLog</name>
    <message>
        <source>The file could not be found at its renamed location.</source>
        <extracomment>Error when a rename cannot be reverted because the file is gone</extracomment>
        <translation>No se encontró el archivo en su ubicación renombrada.</translation>
    </message>
    <message>
        <source>The history could not be read: %1</source>
        <extracomment>Error when a rename cannot be reverted; %1 is the system&apos;s reason</extracomment>
        <translation>No se pudo leer el historial: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Watch Folder</source>
        <translation>Carpeta vigilada</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The setting could not be stored: %1</source>
        <extracomment>%1 is the system&apos;s own reason, as &quot;No space left on device&quot;</extracomment>
        <translation>No se pudo guardar el ajuste: %1</translation>
    </message>
</context>
<context>
    <name>SheetHeader</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Sheets</name>
    <message>
        <source>Delete Template…</source>
        <translation>Eliminar plantilla…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename All</source>
        <translation>Renombrar todo</translation>
    </message>
    <message>
        <source>The history keeps the newest %1 renames, so the first %2 of these cannot be taken back later.</source>
        <translation>El historial guarda los %1 cambios más recientes, así que los primeros %2 de estos no se podrán revertir después.</translation>
    </message>
</context>
<context>
    <name>StateFile</name>
    <message>
        <source>It does not exist.</source>
        <translation>No existe.</translation>
    </message>
    <message>
        <source>It is a link to a file that does not exist.</source>
        <translation>Es un enlace a un archivo que no existe.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Es demasiado grande.</translation>
    </message>
</context>
<context>
    <name>SupportedFormats</name>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Text &amp; data</source>
        <translation>Texto y datos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
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
        <translation>Varlo admite más de %1 tipos de archivo</translation>
    </message>
    <message>
        <source>View all</source>
        <translation>Ver todos</translation>
    </message>
</context>
<context>
    <name>TagsPane</name>
    <message>
        <source>Add Finder tags to renamed files</source>
        <translation>Añadir etiquetas del Finder a los archivos renombrados</translation>
    </message>
    <message>
        <source>When on, Varlo suggests a few keyword tags for each file and writes them as Finder tags when you rename. You&apos;ll see the tags before they&apos;re applied.</source>
        <translation>Si está activado, Varlo sugiere unas palabras clave por archivo y las escribe como etiquetas del Finder al renombrar. Verás las etiquetas antes de que se apliquen.</translation>
    </message>
    <message>
        <source>2025-03-14 - Acme - Hosting plan - 174.24 EUR.pdf</source>
        <extracomment>A file name, as an example of what Varlo makes</extracomment>
        <translation>2025-03-14 - Acme - Plan de alojamiento - 174,24 EUR.pdf</translation>
    </message>
    <message>
        <source>invoice,hosting,acme</source>
        <extracomment>Keyword tags of a file, as an example, with commas between them</extracomment>
        <translation>factura,alojamiento,acme</translation>
    </message>
</context>
<context>
    <name>TemplateEditorSection</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Añadir campo</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Delete Template…</source>
        <translation>Eliminar plantilla…</translation>
    </message>
</context>
<context>
    <name>TemplateField</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Partes</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>Tipo de documento</translation>
    </message>
</context>
<context>
    <name>TemplatePicker</name>
    <message>
        <source>Template:</source>
        <translation>Plantilla:</translation>
    </message>
    <message>
        <source>Choose template</source>
        <translation>Elegir plantilla</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminada</translation>
    </message>
    <message>
        <source>The AI picks the name structure</source>
        <translation>La IA elige la estructura del nombre</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
</context>
<context>
    <name>TemplatePreview</name>
    <message>
        <source>New Template…</source>
        <translation>Nueva plantilla…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Ajustes predeterminados</translation>
    </message>
    <message>
        <source>Delete Template…</source>
        <translation>Eliminar plantilla…</translation>
    </message>
    <message>
        <source>No fixed template — the AI picks the best name structure for each file.</source>
        <translation>Sin plantilla fija: la IA elige la mejor estructura para cada archivo.</translation>
    </message>
</context>
<context>
    <name>TemplatesPane</name>
    <message>
        <source>How suggested names are built. Pick one per batch in the main window.</source>
        <translation>Cómo se construyen los nombres sugeridos. Elige una por lote en la ventana principal.</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Ajustes predeterminados</translation>
    </message>
    <message>
        <source>No fixed template — the AI picks the best name structure for each file.</source>
        <translation>Sin plantilla fija: la IA elige la mejor estructura para cada archivo.</translation>
    </message>
    <message>
        <source>New Template…</source>
        <translation>Nueva plantilla…</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>This type of file is not supported yet.</source>
        <translation>Este tipo de archivo aún no es compatible.</translation>
    </message>
    <message>
        <source>%1 of %2 files, about %3:%4 left</source>
        <translation>%1 de %2 archivos, quedan unos %3:%4</translation>
    </message>
    <message>
        <source>there is no preference “%1”</source>
        <translation>no existe la preferencia «%1»</translation>
    </message>
    <message>
        <source>; did you mean “%1”?</source>
        <translation>; ¿querías decir «%1»?</translation>
    </message>
    <message>
        <source>is either true or false</source>
        <translation>es true o false</translation>
    </message>
    <message>
        <source>is one of system, en, nl and es</source>
        <translation>es system, en, nl o es</translation>
    </message>
    <message>
        <source>is a folder that exists</source>
        <translation>es una carpeta que existe</translation>
    </message>
    <message>
        <source>the preference could not be stored: %1</source>
        <translation>no se pudo guardar la preferencia: %1</translation>
    </message>
    <message>
        <source>%1, %2 × %3, %4 bytes</source>
        <translation>%1, %2 × %3, %4 bytes</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Sin texto</translation>
    </message>
    <message>
        <source>%1 is not a folder that Varlo may rename in</source>
        <translation>%1 no es una carpeta donde Varlo pueda renombrar</translation>
    </message>
    <message>
        <source>the history could not be read: %1</source>
        <translation>no se pudo leer el historial: %1</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>revertido</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Nombre anterior</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nombre nuevo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; give --yes to clear without asking</source>
        <translation>no hay terminal donde preguntar; usa --yes para vaciar sin preguntar</translation>
    </message>
    <message>
        <source>Clear the history? No file changes, but no rename in it can be taken back any more.</source>
        <translation>¿Vaciar el historial? No cambia ningún archivo, pero ya no se podrá revertir nada de lo que contiene.</translation>
    </message>
    <message>
        <source>the history could not be cleared: %1</source>
        <translation>no se pudo vaciar el historial: %1</translation>
    </message>
    <message>
        <source>the history has no such rename</source>
        <translation>ese cambio de nombre no está en el historial</translation>
    </message>
    <message>
        <source>there is no rename to take back</source>
        <translation>no hay nada que revertir</translation>
    </message>
    <message>
        <source>API key (not shown): </source>
        <translation>Clave de API (no se muestra): </translation>
    </message>
    <message>
        <source>No API key set.</source>
        <translation>No hay ninguna clave de API.</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it and try again.</source>
        <translation>El llavero está bloqueado. Desbloquéalo y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>The secret store does not answer.</source>
        <translation>El almacén de secretos no responde.</translation>
    </message>
    <message>
        <source>A key is stored for %1.</source>
        <translation>Hay una clave guardada para %1.</translation>
    </message>
    <message>
        <source>no key was given</source>
        <translation>no se ha dado ninguna clave</translation>
    </message>
    <message>
        <source>the window (varlo-window) is not installed; see `varlo --help`</source>
        <translation>la ventana (varlo-window) no está instalada; consulta `varlo --help`</translation>
    </message>
    <message>
        <source>(stays as it is)</source>
        <translation>(se queda como está)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>the history keeps the newest %1 renames, so the first %2 of these cannot be taken back later</source>
        <translation>el historial guarda los %1 cambios más recientes, así que los primeros %2 de estos no se podrán revertir después</translation>
    </message>
    <message>
        <source>Rename as shown?</source>
        <translation>¿Renombrar así?</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; give --yes to rename without asking</source>
        <translation>no hay terminal donde preguntar; usa --yes para renombrar sin preguntar</translation>
    </message>
    <message>
        <source>Files renamed: %1. `varlo undo --last %1` takes that back.</source>
        <translation>Archivos renombrados: %1. `varlo undo --last %1` los revierte.</translation>
    </message>
    <message>
        <source>Suggested name</source>
        <translation>Nombre sugerido</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>the templates could not be stored: %1</source>
        <translation>no se pudieron guardar las plantillas: %1</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campos</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Ejemplo</translation>
    </message>
    <message>
        <source>the built-in templates cannot be removed</source>
        <translation>las plantillas incluidas no se pueden quitar</translation>
    </message>
    <message>
        <source>the folder %1 is gone</source>
        <translation>la carpeta %1 ya no está</translation>
    </message>
    <message>
        <source>Watching %1 until Ctrl-C.</source>
        <translation>Vigilando %1 hasta Ctrl-C.</translation>
    </message>
    <message>
        <source>the suggestions can no longer be printed</source>
        <translation>ya no se pueden escribir las sugerencias</translation>
    </message>
    <message>
        <source>too much is watched on this machine already (raise fs.inotify.max_user_watches and fs.inotify.max_user_instances)</source>
        <translation>en este equipo ya se vigila demasiado (sube fs.inotify.max_user_watches y fs.inotify.max_user_instances)</translation>
    </message>
    <message>
        <source>there is no template with the id “%1”</source>
        <translation>no hay ninguna plantilla con el id «%1»</translation>
    </message>
    <message>
        <source>the part that asks a model is not installed</source>
        <translation>la parte que consulta a un modelo no está instalada</translation>
    </message>
    <message>
        <source>store a key with `varlo key set`, or use --offline; a model server on this machine takes any key</source>
        <translation>guarda una clave con `varlo key set` o usa --offline; un servidor de modelos en este equipo acepta cualquier clave</translation>
    </message>
    <message>
        <source>Nothing here Varlo can rename.</source>
        <translation>Aquí no hay nada que Varlo pueda renombrar.</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>What has to be typed for yes; the capital letter marks what a mere Return means</extracomment>
        <translation>[s/N]</translation>
    </message>
    <message>
        <source>y</source>
        <extracomment>The letter that means yes</extracomment>
        <translation>s</translation>
    </message>
    <message>
        <source>this session has no notifications to show</source>
        <translation>esta sesión no puede mostrar notificaciones</translation>
    </message>
    <message>
        <source>The settings do not fit; see `varlo doctor`.</source>
        <translation>Los ajustes no son válidos; consulta `varlo doctor`.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Filename language:</source>
        <translation>Idioma del nombre:</translation>
    </message>
    <message>
        <source>Filename language</source>
        <translation>Idioma del nombre</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>What was received does not come from Varlo.</source>
        <extracomment>Error of the check for updates when what came was not signed by the makers of the program</extracomment>
        <translation>Lo recibido no procede de Varlo.</translation>
    </message>
    <message>
        <source>What was received cannot be understood.</source>
        <translation>No se entiende lo recibido.</translation>
    </message>
    <message>
        <source>No answer came in time.</source>
        <translation>No llegó respuesta a tiempo.</translation>
    </message>
</context>
<context>
    <name>UpdateSheet</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>Abrir página</translation>
    </message>
</context>
<context>
    <name>Varlo::AppUIState</name>
    <message>
        <source>Files Varlo can name</source>
        <translation>Archivos que Varlo puede nombrar</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
</context>
<context>
    <name>Varlo::HistoryView</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
</context>
<context>
    <name>Varlo::UpdaterModel</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Updates could not be checked.</source>
        <translation>No se pudieron buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Varlo %1 is available.</source>
        <extracomment>%1 is a version, as 1.2.0</extracomment>
        <translation>Varlo %1 está disponible.</translation>
    </message>
    <message>
        <source>Varlo is up to date.</source>
        <translation>Varlo está actualizado.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Tienes la versión %1.</translation>
    </message>
</context>
<context>
    <name>WatchPane</name>
    <message>
        <source>Suggest names for new files automatically</source>
        <translation>Sugerir nombres para archivos nuevos automáticamente</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Also include files already in this folder</source>
        <translation>Incluir también los archivos que ya están en la carpeta</translation>
    </message>
    <message>
        <source>New files appear in the main window as suggestions — nothing is renamed until you review.</source>
        <translation>Los archivos nuevos aparecen como sugerencias en la ventana principal; nada se renombra hasta que lo revises.</translation>
    </message>
</context>
<context>
    <name>WatcherStrip</name>
    <message>
        <source>is being watched</source>
        <translation>se está vigilando</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Varlo</source>
        <translation>Te damos la bienvenida a Varlo</translation>
    </message>
    <message>
        <source>Varlo suggests a new name based on what’s in your files.</source>
        <translation>Varlo sugiere un nombre nuevo según lo que hay en tus archivos.</translation>
    </message>
    <message>
        <source>AI reads your files and names them</source>
        <translation>La IA lee tus archivos y les pone nombre</translation>
    </message>
    <message>
        <source>Dutch, Spanish and English</source>
        <translation>Neerlandés, español e inglés</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Empezar</translation>
    </message>
</context>
</TS>
