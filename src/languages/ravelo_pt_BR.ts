<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CapturePage</name>
    <message>
        <source>Secrets</source>
        <translation>Segredos</translation>
    </message>
    <message>
        <source>Forget secrets after</source>
        <translation>Esquecer segredos após</translation>
    </message>
    <message>
        <source>Tokens, private keys and card numbers are shown masked, kept in memory only and never written to disk.</source>
        <translation>Tokens, chaves privadas e números de cartão aparecem mascarados, ficam só na memória e nunca são gravados no disco.</translation>
    </message>
    <message>
        <source>Never kept</source>
        <translation>Nunca guardar</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minutos</translation>
    </message>
    <message>
        <source>60 minutes</source>
        <translation>60 minutos</translation>
    </message>
    <message>
        <source>Treat as any text</source>
        <translation>Tratar como texto comum</translation>
    </message>
    <message>
        <source>Single words that look like keys, too</source>
        <translation>Também palavras que parecem chaves</translation>
    </message>
    <message>
        <source>Order and selection</source>
        <translation>Ordem e seleção</translation>
    </message>
    <message>
        <source>Newest first, always</source>
        <translation>Sempre o mais recente primeiro</translation>
    </message>
    <message>
        <source>A new copy goes to the top; the limit drops the oldest.</source>
        <translation>Uma nova cópia vai para o topo; o limite descarta a mais antiga.</translation>
    </message>
    <message>
        <source>Keep texts exactly</source>
        <translation>Guardar os textos exatamente</translation>
    </message>
    <message>
        <source>Spaces at the ends are kept, and make another clip.</source>
        <translation>Espaços nas pontas são mantidos e formam outro item.</translation>
    </message>
    <message>
        <source>Keep selected text, too</source>
        <translation>Guardar também o texto selecionado</translation>
    </message>
    <message>
        <source>The primary selection, pasted with the middle mouse button.</source>
        <translation>A seleção primária, colada com o botão do meio do mouse.</translation>
    </message>
    <message>
        <source>Show program and size in the list</source>
        <translation>Mostrar programa e tamanho na lista</translation>
    </message>
    <message>
        <source>Of what is copied from now on; also finds it by “app:firefox”.</source>
        <translation>Do que for copiado a partir de agora; também dá para buscar “app:firefox”.</translation>
    </message>
    <message>
        <source>Sizes only: this desktop does not show programs who copied.</source>
        <translation>Só tamanhos: este ambiente não mostra aos programas quem copiou.</translation>
    </message>
    <message>
        <source>Possible on X11 only.</source>
        <translation>Possível somente no X11.</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Reveal while held</source>
        <translation>Mostrar enquanto pressionado</translation>
    </message>
    <message>
        <source>Hold to reveal</source>
        <translation>Segure para mostrar</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Desafixar</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fixar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dispensar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>ClipList</name>
    <message>
        <source>Clipboard history</source>
        <translation>Histórico da área de transferência</translation>
    </message>
</context>
<context>
    <name>ClipQuery</name>
    <message>
        <source>Nothing has “%1”</source>
        <translation>Nada contém “%1”</translation>
    </message>
    <message>
        <source>Nothing from this time</source>
        <translation>Nada desse período</translation>
    </message>
    <message>
        <source>No link has “%1”.</source>
        <translation>Nenhum link contém “%1”.</translation>
    </message>
    <message>
        <source>No links</source>
        <translation>Nenhum link</translation>
    </message>
    <message>
        <source>No image has “%1”.</source>
        <translation>Nenhuma imagem contém “%1”.</translation>
    </message>
    <message>
        <source>No images</source>
        <translation>Nenhuma imagem</translation>
    </message>
    <message>
        <source>No color has “%1”.</source>
        <translation>Nenhuma cor contém “%1”.</translation>
    </message>
    <message>
        <source>No colors</source>
        <translation>Nenhuma cor</translation>
    </message>
    <message>
        <source>No text has “%1”.</source>
        <translation>Nenhum texto contém “%1”.</translation>
    </message>
    <message>
        <source>No texts</source>
        <translation>Nenhum texto</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Nada corresponde</translation>
    </message>
    <message>
        <source>Nothing from “%1”</source>
        <translation>Nada de “%1”</translation>
    </message>
    <message>
        <source>No files have “%1”.</source>
        <translation>Nenhum arquivo contém “%1”.</translation>
    </message>
    <message>
        <source>No files</source>
        <translation>Nenhum arquivo</translation>
    </message>
</context>
<context>
    <name>ClipSheet</name>
    <message>
        <source>Edit clip</source>
        <translation>Editar item</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Descartar as alterações?</translation>
    </message>
</context>
<context>
    <name>ClipboardTab</name>
    <message>
        <source>Search clipboard…</source>
        <translation>Buscar na área de transferência…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Clear clipboard history?</source>
        <translation>Limpar o histórico da área de transferência?</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Older than a week</source>
        <translation>Há mais de 7 dias</translation>
    </message>
    <message>
        <source>No clipboard history yet</source>
        <translation>Ainda não há histórico</translation>
    </message>
    <message>
        <source>Copy anything with ⌘C and it shows up here.</source>
        <translation>Copie algo com Ctrl+C e aparece aqui.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Each line may run as a command.</source>
        <translation>Cada linha pode ser executada como comando.</translation>
    </message>
</context>
<context>
    <name>ContextStatusLine</name>
    <message>
        <source>5h session</source>
        <translation>Sessão de 5h</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Plan usage — updates while Claude Code is active</source>
        <translation>Uso do plano — atualizado enquanto o Claude Code está ativo</translation>
    </message>
</context>
<context>
    <name>CopyLastButton</name>
    <message>
        <source>Copy the last file added to the Shelf</source>
        <translation>Copiar o último arquivo da prateleira</translation>
    </message>
</context>
<context>
    <name>CustomMinutes</name>
    <message>
        <source>Custom minutes</source>
        <translation>Minutos personalizados</translation>
    </message>
</context>
<context>
    <name>CustomMinutesField</name>
    <message>
        <source>minutes</source>
        <translation>minutos</translation>
    </message>
</context>
<context>
    <name>DropCard</name>
    <message>
        <source>Drop files here</source>
        <translation>Solte arquivos aqui</translation>
    </message>
    <message>
        <source>Park them, then drag out or send with AirDrop</source>
        <translation>Deixe-os aqui, depois arraste ou envie a um aparelho</translation>
    </message>
</context>
<context>
    <name>EncryptionStep</name>
    <message>
        <source>Plain files</source>
        <translation>Arquivos simples</translation>
    </message>
    <message>
        <source>Readable by your account, and from a copy of the disk</source>
        <translation>Legíveis pela sua conta e em uma cópia do disco</translation>
    </message>
    <message>
        <source>Encrypt, key in the keyring</source>
        <translation>Criptografar, com a chave no chaveiro</translation>
    </message>
    <message>
        <source>Opens with your login, nothing to type</source>
        <translation>Abre com o seu login, sem digitar nada</translation>
    </message>
    <message>
        <source>No keyring on this desktop</source>
        <translation>Não há chaveiro neste ambiente</translation>
    </message>
    <message>
        <source>Encrypt with a passphrase</source>
        <translation>Criptografar com uma frase secreta</translation>
    </message>
    <message>
        <source>Asked for once per login; it cannot be recovered</source>
        <translation>Pedida uma vez por login; não pode ser recuperada</translation>
    </message>
    <message>
        <source>Encrypt what Ravelo keeps?</source>
        <translation>Criptografar o que o Ravelo guarda?</translation>
    </message>
    <message>
        <source>You can change this later in the settings, under Storage.</source>
        <translation>Você pode mudar isso depois nos ajustes, em Dados.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>ExtensionStep</name>
    <message>
        <source>Turn on</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Log out and in once</source>
        <translation>Saia e entre uma vez</translation>
    </message>
    <message>
        <source>One more thing on GNOME</source>
        <translation>Mais uma coisa no GNOME</translation>
    </message>
    <message>
        <source>GNOME hides the clipboard and the top edge from programs. A small extension passes both on to Ravelo and stores nothing.</source>
        <translation>O GNOME esconde dos programas a área de transferência e a borda superior. Uma pequena extensão repassa ambas ao Ravelo e não guarda nada.</translation>
    </message>
    <message>
        <source>The extension is running.</source>
        <translation>A extensão está em execução.</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>GNOME loads new extensions only when a session begins. Until then Ravelo opens on its handle and by its icon.</source>
        <translation>O GNOME só carrega extensões novas no início de uma sessão. Até lá, o Ravelo abre pela alça e pelo ícone.</translation>
    </message>
</context>
<context>
    <name>FocusControl</name>
    <message>
        <source>Focus…</source>
        <translation>Foco…</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Foco</translation>
    </message>
    <message>
        <source>Focus presets</source>
        <translation>Predefinições de foco</translation>
    </message>
    <message>
        <source>Edit presets…</source>
        <translation>Editar predefinições…</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Outro…</translation>
    </message>
    <message>
        <source>Start countdown</source>
        <translation>Iniciar contagem</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>GNOME</source>
        <translation>GNOME</translation>
    </message>
    <message>
        <source>Extension of GNOME Shell</source>
        <translation>Extensão do GNOME Shell</translation>
    </message>
    <message>
        <source>Without it, Ravelo does not see all copies, opens only on its handle, and closes when the pointer leaves it.</source>
        <translation>Sem ela, o Ravelo não vê todas as cópias, abre só pela alça e fecha quando o ponteiro sai dele.</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Start automatically at login</source>
        <translation>Iniciar automaticamente no login</translation>
    </message>
    <message>
        <source>Open by moving the mouse to the top-center. A live timer pins a small bar at the top while it runs.</source>
        <translation>Abra levando o mouse ao centro do topo. Um timer em andamento fixa ali uma pequena barra.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Full black (for notch Macs)</source>
        <translation>Todo preto (para telas com notch)</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Escuridão</translation>
    </message>
    <message>
        <source>Width: %1</source>
        <translation>Largura: %1</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Área de transferência</translation>
    </message>
    <message>
        <source>1 item stored</source>
        <translation>1 item guardado</translation>
    </message>
    <message>
        <source>%1 items stored</source>
        <translation>%1 itens guardados</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>iPhone sync</source>
        <translation>Sincronia com iPhone</translation>
    </message>
    <message>
        <source>Your data is saved locally on this Mac. Syncing to an iPhone app is the next phase — it needs an Apple Developer account and a companion iOS app.</source>
        <translation>Seus dados ficam salvos neste computador. Sincronizar com um app de iPhone é a próxima fase — requer uma conta de desenvolvedor Apple e um app iOS.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
</context>
<context>
    <name>IgnoreSection</name>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Copies from these programs</source>
        <translation>Cópias destes programas</translation>
    </message>
    <message>
        <source>This desktop does not say which program copies.</source>
        <translation>Este ambiente não informa qual programa copia.</translation>
    </message>
    <message>
        <source>Texts that match a pattern</source>
        <translation>Textos que correspondem a um padrão</translation>
    </message>
    <message>
        <source>Try a text</source>
        <translation>Testar um texto</translation>
    </message>
    <message>
        <source>Type or paste…</source>
        <translation>Digite ou cole…</translation>
    </message>
</context>
<context>
    <name>KeysPage</name>
    <message>
        <source>Paste at once</source>
        <translation>Colar na hora</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste one of the first nine</source>
        <translation>Colar um dos nove primeiros</translation>
    </message>
    <message>
        <source>Copy one of the first nine</source>
        <translation>Copiar um dos nove primeiros</translation>
    </message>
    <message>
        <source>Copy one of them</source>
        <translation>Copiar um deles</translation>
    </message>
    <message>
        <source>Paste one of them</source>
        <translation>Colar um deles</translation>
    </message>
    <message>
        <source>Preview, reveal a secret</source>
        <translation>Prévia, mostrar um segredo</translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation>Abrir um link</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fixar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Choose several</source>
        <translation>Selecionar vários</translation>
    </message>
    <message>
        <source>Extend the choice</source>
        <translation>Ampliar a seleção</translation>
    </message>
    <message>
        <source>Menu of the clip</source>
        <translation>Menu do item</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Próxima aba</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Open from anywhere</source>
        <translation>Abrir de qualquer lugar</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Cópia</translation>
    </message>
    <message>
        <source>Return pastes at once</source>
        <translation>Enter cola na hora</translation>
    </message>
    <message>
        <source>Not possible on this desktop: it lets no program type.</source>
        <translation>Não é possível neste ambiente: ele não deixa programas digitarem.</translation>
    </message>
    <message>
        <source>Into the window you came from. Shift+Return only copies.</source>
        <translation>Na janela de onde você veio. Shift+Enter só copia.</translation>
    </message>
    <message>
        <source>Into the window you came from. Shift+Return always does.</source>
        <translation>Na janela de onde você veio. Shift+Enter sempre faz isso.</translation>
    </message>
    <message>
        <source>Join several clips with</source>
        <translation>Unir vários itens com</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>Quebra de linha</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Vírgula</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>No painel</translation>
    </message>
    <message>
        <source>Copy as plain text</source>
        <translation>Copiar como texto simples</translation>
    </message>
    <message>
        <source>Edit and copy</source>
        <translation>Editar e copiar</translation>
    </message>
    <message>
        <source>Permission to type</source>
        <translation>Permissão para digitar</translation>
    </message>
    <message>
        <source>Ask Again</source>
        <translation>Perguntar de novo</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Seta abaixo</translation>
    </message>
</context>
<context>
    <name>LockedPage</name>
    <message>
        <source>Unlock…</source>
        <translation>Desbloquear…</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Frase secreta</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>MacTypeStep</name>
    <message>
        <source>Detect automatically</source>
        <translation>Detectar automaticamente</translation>
    </message>
    <message>
        <source>We found a notch on this display</source>
        <translation>Encontramos um notch nesta tela</translation>
    </message>
    <message>
        <source>We found no notch on this display</source>
        <translation>Não encontramos notch nesta tela</translation>
    </message>
    <message>
        <source>MacBook with a notch</source>
        <translation>Tela com notch</translation>
    </message>
    <message>
        <source>No notch</source>
        <translation>Sem notch</translation>
    </message>
    <message>
        <source>iMac, Mac mini, older MacBooks, external display</source>
        <translation>A maioria dos notebooks, telas externas</translation>
    </message>
    <message>
        <source>What kind of Mac do you have?</source>
        <translation>Que tipo de tela você tem?</translation>
    </message>
    <message>
        <source>This decides how the top timer bar is laid out.</source>
        <translation>Isso define o formato da barra do timer no topo.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>MorePage</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Applies when Ravelo starts again.</source>
        <translation>Vale a partir do próximo início do Ravelo.</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Como está</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>Hide Claude Code where it is not installed</source>
        <translation>Ocultar o Claude Code onde não está instalado</translation>
    </message>
    <message>
        <source>Its rows in the panel and its line in the tray tooltip.</source>
        <translation>Suas linhas no painel e na dica do ícone da bandeja.</translation>
    </message>
    <message>
        <source>Show peak hours</source>
        <translation>Ver horário de pico</translation>
    </message>
    <message>
        <source>Stay with one session</source>
        <translation>Ficar em uma só sessão</translation>
    </message>
    <message>
        <source>With several at work, the one that wrote last, until it has been quiet for a minute.</source>
        <translation>Com várias ativas, a que escreveu por último, até ficar um minuto em silêncio.</translation>
    </message>
    <message>
        <source>Prefer what Claude Code reports</source>
        <translation>Preferir o que o Claude Code informa</translation>
    </message>
    <message>
        <source>From its status line, if that runs ravelo --store-usage.</source>
        <translation>Da linha de status dele, se ela executa ravelo --store-usage.</translation>
    </message>
    <message>
        <source>Second account</source>
        <translation>Segunda conta</translation>
    </message>
    <message>
        <source>Its CLAUDE_CONFIG_DIR…</source>
        <translation>Seu CLAUDE_CONFIG_DIR…</translation>
    </message>
    <message>
        <source>Folder of the second account</source>
        <translation>Pasta da segunda conta</translation>
    </message>
</context>
<context>
    <name>NewPassphrase</name>
    <message>
        <source>Passphrase</source>
        <translation>Frase secreta</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Mais uma vez</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Criptografar</translation>
    </message>
    <message>
        <source>The two are not the same</source>
        <translation>As duas não são iguais</translation>
    </message>
</context>
<context>
    <name>NotesTab</name>
    <message>
        <source>Sketch</source>
        <translation>Esboço</translation>
    </message>
    <message>
        <source>Second note</source>
        <translation>Segunda nota</translation>
    </message>
    <message>
        <source>Quick note</source>
        <translation>Nota rápida</translation>
    </message>
    <message>
        <source>Sketch pad</source>
        <translation>Bloco de esboços</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Dismiss</source>
        <translation>Dispensar</translation>
    </message>
</context>
<context>
    <name>NotificationsSection</name>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>The timer has ended</source>
        <translation>O timer terminou</translation>
    </message>
    <message>
        <source>This desktop shows no notifications.</source>
        <translation>Este ambiente não mostra notificações.</translation>
    </message>
    <message>
        <source>Files have arrived</source>
        <translation>Chegaram arquivos</translation>
    </message>
    <message>
        <source>Saving fails</source>
        <translation>Falha ao salvar</translation>
    </message>
    <message>
        <source>Plan at 80% and 95%, and its reset</source>
        <translation>Plano em 80% e 95%, e o reset</translation>
    </message>
    <message>
        <source>None while the screen is locked.</source>
        <translation>Nenhuma enquanto a tela está bloqueada.</translation>
    </message>
</context>
<context>
    <name>PatternRow</name>
    <message>
        <source>Add a pattern…</source>
        <translation>Adicionar um padrão…</translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation>Padrão %1</translation>
    </message>
    <message>
        <source>Remove pattern %1</source>
        <translation>Remover o padrão %1</translation>
    </message>
</context>
<context>
    <name>PauseButton</name>
    <message>
        <source>until %1</source>
        <translation>até %1</translation>
    </message>
    <message>
        <source>Pause for 15 minutes</source>
        <translation>Pausar por 15 minutos</translation>
    </message>
    <message>
        <source>Pause for an hour</source>
        <translation>Pausar por uma hora</translation>
    </message>
    <message>
        <source>Pause until resumed</source>
        <translation>Pausar até retomar</translation>
    </message>
    <message>
        <source>Resume capture</source>
        <translation>Retomar captura</translation>
    </message>
    <message>
        <source>Ignore the next copy</source>
        <translation>Ignorar a próxima cópia</translation>
    </message>
    <message>
        <source>Pause capture</source>
        <translation>Pausar captura</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausada</translation>
    </message>
    <message>
        <source>paused until %1</source>
        <translation>pausada até %1</translation>
    </message>
    <message>
        <source>Capture paused — click to resume</source>
        <translation>Captura pausada — clique para retomar</translation>
    </message>
    <message>
        <source>Capture paused until %1 — click to resume</source>
        <translation>Captura pausada até %1 — clique para retomar</translation>
    </message>
</context>
<context>
    <name>PresetEditor</name>
    <message>
        <source>Focus presets</source>
        <translation>Predefinições de foco</translation>
    </message>
</context>
<context>
    <name>PresetList</name>
    <message>
        <source>Add preset</source>
        <translation>Adicionar predefinição</translation>
    </message>
</context>
<context>
    <name>PresetRow</name>
    <message>
        <source>Preset</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
</context>
<context>
    <name>PreviewSurface</name>
    <message>
        <source>Image, %1</source>
        <translation>Imagem, %1</translation>
    </message>
    <message>
        <source>Color, hex %1</source>
        <translation>Cor, hexadecimal %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
</context>
<context>
    <name>ProgramTags</name>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Novo…</translation>
    </message>
    <message>
        <source>Add a program</source>
        <translation>Adicionar um programa</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
</context>
<context>
    <name>QuestionContent</name>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
</context>
<context>
    <name>ReadOnlyText</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
</context>
<context>
    <name>ReceivedFiles</name>
    <message>
        <source>Received files</source>
        <translation>Arquivos recebidos</translation>
    </message>
    <message>
        <source>AirDrops land in your Downloads folder</source>
        <translation>O que chega fica na pasta Downloads</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Received by AirDrop</source>
        <translation>Arquivo recebido</translation>
    </message>
</context>
<context>
    <name>ReceivedRow</name>
    <message>
        <source>Add to shelf</source>
        <translation>Pôr na prateleira</translation>
    </message>
</context>
<context>
    <name>ReminderItem</name>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
</context>
<context>
    <name>ReminderStrip</name>
    <message>
        <source>Reminders</source>
        <translation>Lembretes</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Novo…</translation>
    </message>
    <message>
        <source>Add a reminder</source>
        <translation>Adicionar um lembrete</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Lembrete</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>RowMenu</name>
    <message>
        <source>Clip</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Excluir %1</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Keep as any text</source>
        <translation>Guardar como texto comum</translation>
    </message>
    <message>
        <source>Forget now</source>
        <translation>Esquecer agora</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Enter</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Desafixar</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fixar</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Paste at once</source>
        <translation>Colar na hora</translation>
    </message>
    <message>
        <source>Copy as plain text</source>
        <translation>Copiar só o texto</translation>
    </message>
    <message>
        <source>Alt+Return</source>
        <translation>Alt+Enter</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>RunningTimer</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Delete removes it</source>
        <translation>Delete remove</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
</context>
<context>
    <name>SecretRow</name>
    <message>
        <source>Unchecked text</source>
        <translation>Texto não verificado</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 linha</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 linhas</translation>
    </message>
    <message>
        <source>Secret, %1</source>
        <translation>Segredo, %1</translation>
    </message>
    <message>
        <source>Secret, %1, ends in %2</source>
        <translation>Segredo, %1, termina em %2</translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message>
        <source>%1 clips selected</source>
        <translation>%1 itens selecionados</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 selecionados</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Limpar seleção</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Páginas de ajustes</translation>
    </message>
    <message>
        <source>Ravelo v0.2</source>
        <translation>Ravelo v0.2</translation>
    </message>
    <message>
        <source>Quit Ravelo</source>
        <translation>Sair do Ravelo</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>ShelfGrid</name>
    <message>
        <source>Shelf</source>
        <translation>Prateleira</translation>
    </message>
</context>
<context>
    <name>ShelfHeader</name>
    <message>
        <source>drag any to move all</source>
        <translation>arraste um para mover todos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar para</translation>
    </message>
</context>
<context>
    <name>ShelfTab</name>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Add to shelf</source>
        <translation>Pôr na prateleira</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>ShelfTileView</name>
    <message>
        <source>No longer available</source>
        <translation>Não está mais disponível</translation>
    </message>
</context>
<context>
    <name>ShortcutField</name>
    <message>
        <source>Press the keys</source>
        <translation>Pressione as teclas</translation>
    </message>
    <message>
        <source>Shortcut, %1</source>
        <translation>Atalho, %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Pressione as teclas…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Remove the shortcut</source>
        <translation>Remover o atalho</translation>
    </message>
</context>
<context>
    <name>SketchPad</name>
    <message>
        <source>Pen</source>
        <translation>Caneta</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borracha</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Copy, or drag it out</source>
        <translation>Copiar, ou arrastar para fora</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Esboço</translation>
    </message>
</context>
<context>
    <name>SnippetSheet</name>
    <message>
        <source>Edit snippet</source>
        <translation>Editar trecho</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Remove image</source>
        <translation>Remover imagem</translation>
    </message>
    <message>
        <source>Attach image from clipboard</source>
        <translation>Anexar imagem da área de transferência</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Descartar as alterações?</translation>
    </message>
</context>
<context>
    <name>SnippetStrip</name>
    <message>
        <source>Snippets</source>
        <translation>Trechos</translation>
    </message>
    <message>
        <source>New snippet</source>
        <translation>Novo trecho</translation>
    </message>
    <message>
        <source>Snippet</source>
        <translation>Trecho</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Delete snippet?</source>
        <translation>Excluir o trecho?</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Keep</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>History length</source>
        <translation>Tamanho do histórico</translation>
    </message>
    <message>
        <source>A shorter limit applies from the next copy.</source>
        <translation>Um limite menor vale a partir da próxima cópia.</translation>
    </message>
    <message>
        <source>60 clips</source>
        <translation>60 itens</translation>
    </message>
    <message>
        <source>200 clips</source>
        <translation>200 itens</translation>
    </message>
    <message>
        <source>1,000 clips</source>
        <translation>1.000 itens</translation>
    </message>
    <message>
        <source>Keep for</source>
        <translation>Guardar por</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 dias</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>7 dias</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 dia</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation>%1 em uso</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>Sem limite</translation>
    </message>
    <message>
        <source>16 MB</source>
        <translation>16 MB</translation>
    </message>
    <message>
        <source>64 MB</source>
        <translation>64 MB</translation>
    </message>
    <message>
        <source>256 MB</source>
        <translation>256 MB</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Pinned clips stay. When it is full, the oldest go first.</source>
        <translation>Itens fixados ficam. Quando enche, os mais antigos saem primeiro.</translation>
    </message>
    <message>
        <source>128 MB</source>
        <translation>128 MB</translation>
    </message>
    <message>
        <source>512 MB</source>
        <translation>512 MB</translation>
    </message>
    <message>
        <source>2 GB</source>
        <translation>2 GB</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Criptografia</translation>
    </message>
    <message>
        <source>Encrypt what is stored</source>
        <translation>Criptografar o que é guardado</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chave</translation>
    </message>
    <message>
        <source>From the keyring</source>
        <translation>Do chaveiro</translation>
    </message>
    <message>
        <source>Passphrase…</source>
        <translation>Frase secreta…</translation>
    </message>
    <message>
        <source>Forget the key while the screen is locked</source>
        <translation>Esquecer a chave enquanto a tela está bloqueada</translation>
    </message>
    <message>
        <source>Clips, notes, snippets and images. Without the key nobody can read them, you included. Settings and reminders stay plain.</source>
        <translation>Itens, notas, trechos e imagens. Sem a chave ninguém pode lê-los, nem você. Ajustes e lembretes ficam legíveis.</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Trechos</translation>
    </message>
    <message>
        <source>1 snippet</source>
        <translation>1 trecho</translation>
    </message>
    <message>
        <source>%1 snippets</source>
        <translation>%1 trechos</translation>
    </message>
    <message>
        <source>As a file to pass on, with their images. It is not encrypted.</source>
        <translation>Como arquivo para compartilhar, com as imagens. Não é criptografado.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>The last hour</source>
        <translation>A última hora</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 item</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Everything on this computer</source>
        <translation>Tudo neste computador</translation>
    </message>
    <message>
        <source>History, notes, snippets, shelf and settings are removed from the disk at once, and Ravelo ends. Your files stay where they are.</source>
        <translation>Histórico, notas, trechos, prateleira e ajustes são removidos do disco na hora, e o Ravelo termina. Seus arquivos ficam onde estão.</translation>
    </message>
    <message>
        <source>Erase everything…</source>
        <translation>Apagar tudo…</translation>
    </message>
    <message>
        <source>Erase everything on this computer?</source>
        <translation>Apagar tudo neste computador?</translation>
    </message>
    <message>
        <source>There is no undo.</source>
        <translation>Não há como desfazer.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueado</translation>
    </message>
    <message>
        <source>Clear the last hour?</source>
        <translation>Limpar a última hora?</translation>
    </message>
</context>
<context>
    <name>TitledPage</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>ToastCapsule</name>
    <message>
        <source>%1. Undo with Control Z</source>
        <translation>%1. Desfazer com Control Z</translation>
    </message>
</context>
<context>
    <name>TooLargeText</name>
    <message>
        <source>%1 megapixels</source>
        <translation>%1 megapixels</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mais de %1</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>Texto de %1</translation>
    </message>
    <message>
        <source>Image of %1</source>
        <translation>Imagem de %1</translation>
    </message>
    <message>
        <source>Text of %1, the limit is %2</source>
        <translation>Texto de %1, o limite é %2</translation>
    </message>
    <message>
        <source>Image of %1, the limit is %2</source>
        <translation>Imagem de %1, o limite é %2</translation>
    </message>
    <message>
        <source>Too large to keep · %1 of text</source>
        <translation>Grande demais para guardar · %1 de texto</translation>
    </message>
    <message>
        <source>Too large to keep · image of %1</source>
        <translation>Grande demais para guardar · imagem de %1</translation>
    </message>
    <message>
        <source>%1 megapixels of 16 bits</source>
        <translation>%1 megapixels de 16 bits</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Shown under the notch — click to hide</source>
        <translation>Visíveis sob o notch — clique para ocultar</translation>
    </message>
    <message>
        <source>Hidden — click to show under the notch</source>
        <translation>Ocultos — clique para mostrar sob o notch</translation>
    </message>
    <message>
        <source>Hide reminders under the notch?</source>
        <translation>Ocultar os lembretes sob o notch?</translation>
    </message>
    <message>
        <source>Show reminders under the notch?</source>
        <translation>Mostrar os lembretes sob o notch?</translation>
    </message>
    <message>
        <source>Turno da noite — apaga a tela em ~5s e trabalha no pendente</source>
        <translation>Turno da noite — apaga a tela em ~5s e trabalha no pendente</translation>
    </message>
    <message>
        <source>Shut down the Mac</source>
        <translation>Desligar o computador</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Shut down the Mac?</source>
        <translation>Desligar o computador?</translation>
    </message>
</context>
<context>
    <name>UpdateView</name>
    <message>
        <source>Later</source>
        <translation>Depois</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
</context>
<context>
    <name>UsageRow</name>
    <message>
        <source>%1 has reset; %2 is from before the reset</source>
        <translation>%1 já resetou; %2 é de antes disso</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Ravelo</source>
        <translation>Boas-vindas ao Ravelo</translation>
    </message>
    <message>
        <source>Clipboard, shelf, snippets and a focus timer — one hover away at the top of your screen.</source>
        <translation>Área de transferência, prateleira, trechos e timer de foco — no topo da sua tela.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Super+V is taken by another program</source>
        <translation>Super+V já é de outro programa</translation>
    </message>
    <message>
        <source>Open it with Super+V, too</source>
        <translation>Abrir também com Super+V</translation>
    </message>
</context>
<context>
    <name>ravelo::CaptureRules</name>
    <message>
        <source>A bracket is not closed, at character %1</source>
        <translation>Um parêntese não foi fechado, no caractere %1</translation>
    </message>
    <message>
        <source>%1%2, at character %3</source>
        <translation>%1%2, no caractere %3</translation>
    </message>
</context>
<context>
    <name>ravelo::ClipListModel</name>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Too large to keep</source>
        <translation>Grande demais para guardar</translation>
    </message>
    <message>
        <source>forgotten in less than a minute</source>
        <translation>esquecido em menos de um minuto</translation>
    </message>
    <message>
        <source>forgotten in 1 minute</source>
        <translation>esquecido em 1 minuto</translation>
    </message>
    <message>
        <source>forgotten in %1 minutes</source>
        <translation>esquecido em %1 minutos</translation>
    </message>
    <message>
        <source>forgotten %1</source>
        <translation>esquecido %1</translation>
    </message>
    <message>
        <source>in memory only</source>
        <translation>só na memória</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>agora mesmo</translation>
    </message>
    <message>
        <source>This expression takes too long</source>
        <translation>Esta expressão demora demais</translation>
    </message>
    <message>
        <source>Turn on “Show program and size in the list” to find programs</source>
        <translation>Ative “Mostrar programa e tamanho na lista” para encontrar programas</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fixado</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
</context>
<context>
    <name>ravelo::ClipPasting</name>
    <message>
        <source>Shift+Return</source>
        <translation>Shift+Enter</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Paste a line break into the terminal?</source>
        <translation>Colar uma quebra de linha no terminal?</translation>
    </message>
    <message>
        <source>Paste %1 line breaks into the terminal?</source>
        <translation>Colar %1 quebras de linha no terminal?</translation>
    </message>
</context>
<context>
    <name>ravelo::ClipPreview</name>
    <message>
        <source>User</source>
        <translation>Usuário</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Seção</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>HSL</source>
        <translation>HSL</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 caractere</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caracteres</translation>
    </message>
    <message>
        <source>%1 lines, %2</source>
        <translation>%1 linhas, %2</translation>
    </message>
    <message>
        <source>PNG, %1</source>
        <translation>PNG, %1</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>Não existe mais</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabela</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
</context>
<context>
    <name>ravelo::Clips</name>
    <message>
        <source>Clipboard</source>
        <translation>Área de transferência</translation>
    </message>
    <message>
        <source>Pictures cannot be joined</source>
        <translation>Imagens não podem ser unidas</translation>
    </message>
    <message>
        <source>Copied %1 ✓</source>
        <translation>%1 copiados ✓</translation>
    </message>
    <message>
        <source>History cleared · 1 clip</source>
        <translation>Histórico limpo · 1 item</translation>
    </message>
    <message>
        <source>History cleared · %1 clips</source>
        <translation>Histórico limpo · %1 itens</translation>
    </message>
    <message>
        <source>Too long to edit</source>
        <translation>Longo demais para editar</translation>
    </message>
    <message>
        <source>joined by spaces, in this order</source>
        <translation>unidos por espaços, nesta ordem</translation>
    </message>
    <message>
        <source>joined by commas, in this order</source>
        <translation>unidos por vírgulas, nesta ordem</translation>
    </message>
    <message>
        <source>joined by nothing, in this order</source>
        <translation>unidos sem separador, nesta ordem</translation>
    </message>
    <message>
        <source>joined by line breaks, in this order</source>
        <translation>unidos por quebras de linha, nesta ordem</translation>
    </message>
    <message>
        <source>Copied %1 ✓ Pictures left out</source>
        <translation>%1 copiados ✓ Sem imagens</translation>
    </message>
    <message>
        <source>The image cannot be read</source>
        <translation>A imagem não pode ser lida</translation>
    </message>
</context>
<context>
    <name>ravelo::DataLock</name>
    <message>
        <source>another Ravelo has taken over</source>
        <translation>outro Ravelo assumiu</translation>
    </message>
    <message>
        <source>its lock was removed</source>
        <translation>o bloqueio foi removido</translation>
    </message>
</context>
<context>
    <name>ravelo::Deleting</name>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>%1 excluídos</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Restored ✓</source>
        <translation>Restaurado ✓</translation>
    </message>
    <message>
        <source>Could not undo: %1</source>
        <translation>Não foi possível desfazer: %1</translation>
    </message>
    <message>
        <source>Restored %1 of %2: %3</source>
        <translation>%1 de %2 restaurados: %3</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar de novo</translation>
    </message>
</context>
<context>
    <name>ravelo::DesktopNotices</name>
    <message>
        <source>The timer has ended</source>
        <translation>O timer terminou</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Iniciar de novo</translation>
    </message>
    <message>
        <source>5 more minutes</source>
        <translation>Mais 5 minutos</translation>
    </message>
    <message>
        <source>A file has arrived</source>
        <translation>Chegou um arquivo</translation>
    </message>
    <message>
        <source>%1 files have arrived</source>
        <translation>Chegaram %1 arquivos</translation>
    </message>
    <message>
        <source>In your downloads folder.</source>
        <translation>Na pasta Downloads.</translation>
    </message>
    <message>
        <source>Saving fails</source>
        <translation>Falha ao salvar</translation>
    </message>
    <message>
        <source>The panel has the reason.</source>
        <translation>O painel mostra o motivo.</translation>
    </message>
    <message>
        <source>5h session</source>
        <translation>Sessão de 5h</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>%1 was reset</source>
        <translation>%1 resetou</translation>
    </message>
    <message>
        <source>%1: %2 used</source>
        <translation>%1: %2 usado</translation>
    </message>
    <message>
        <source>Resets in %1.</source>
        <translation>Reseta em %1.</translation>
    </message>
</context>
<context>
    <name>ravelo::Encryption</name>
    <message>
        <source>Ravelo: key of the clipboard history</source>
        <translation>Ravelo: chave do histórico da área de transferência</translation>
    </message>
    <message>
        <source>That is not the passphrase</source>
        <translation>Esta não é a frase secreta</translation>
    </message>
    <message>
        <source>Not enough memory to try the passphrase</source>
        <translation>Memória insuficiente para testar a frase secreta</translation>
    </message>
    <message>
        <source>The keyring did not keep the key</source>
        <translation>O chaveiro não guardou a chave</translation>
    </message>
    <message>
        <source>The keyring did not keep the key: %1</source>
        <translation>O chaveiro não guardou a chave: %1</translation>
    </message>
</context>
<context>
    <name>ravelo::ExtensionOffer</name>
    <message>
        <source>It is not installed.</source>
        <translation>Ela não está instalada.</translation>
    </message>
    <message>
        <source>The extension is older than Ravelo. Log out and in once.</source>
        <translation>A extensão é mais antiga que o Ravelo. Saia da sessão e entre de novo.</translation>
    </message>
    <message>
        <source>The extension is newer than Ravelo. Quit Ravelo and start it again.</source>
        <translation>A extensão é mais nova que o Ravelo. Saia do Ravelo e abra-o de novo.</translation>
    </message>
    <message>
        <source>It is turned on. Log out and in once.</source>
        <translation>Ela está ativada. Saia da sessão e entre de novo.</translation>
    </message>
    <message>
        <source>It is turned on. Quit Ravelo and start it again.</source>
        <translation>Ela está ativada. Saia do Ravelo e abra-o de novo.</translation>
    </message>
    <message>
        <source>It could not be turned on. Turn extensions on in the Extensions app, or log out and in and try again.</source>
        <translation>Não foi possível ativá-la. Ative as extensões no aplicativo Extensões, ou saia da sessão, entre de novo e tente outra vez.</translation>
    </message>
</context>
<context>
    <name>ravelo::FileChoice</name>
    <message>
        <source>Export snippets</source>
        <translation>Exportar trechos</translation>
    </message>
    <message>
        <source>Import snippets</source>
        <translation>Importar trechos</translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation>Arquivos JSON</translation>
    </message>
</context>
<context>
    <name>ravelo::Files</name>
    <message>
        <source>the disk is full</source>
        <translation>o disco está cheio</translation>
    </message>
    <message>
        <source>the folder is read-only</source>
        <translation>a pasta é somente leitura</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 não pôde ser removido</translation>
    </message>
</context>
<context>
    <name>ravelo::Focus</name>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Minutes are a whole number from 1</source>
        <translation>Minutos: um número inteiro a partir de 1</translation>
    </message>
</context>
<context>
    <name>ravelo::IgnoreTrial</name>
    <message>
        <source>the first pattern</source>
        <translation>o primeiro padrão</translation>
    </message>
    <message>
        <source>the second pattern</source>
        <translation>o segundo padrão</translation>
    </message>
    <message>
        <source>the third pattern</source>
        <translation>o terceiro padrão</translation>
    </message>
    <message>
        <source>the fourth pattern</source>
        <translation>o quarto padrão</translation>
    </message>
    <message>
        <source>the fifth pattern</source>
        <translation>o quinto padrão</translation>
    </message>
    <message>
        <source>pattern %1</source>
        <translation>padrão %1</translation>
    </message>
    <message>
        <source>Would be ignored, by %1</source>
        <translation>Seria ignorado (%1)</translation>
    </message>
    <message>
        <source>Would stay in memory only: %1 takes too long</source>
        <translation>Ficaria só na memória: %1 demora demais</translation>
    </message>
    <message>
        <source>Would be kept</source>
        <translation>Seria guardado</translation>
    </message>
</context>
<context>
    <name>ravelo::LinkOpening</name>
    <message>
        <source>Not opened</source>
        <translation>Não foi aberto</translation>
    </message>
    <message>
        <source>No program opens %1 links</source>
        <translation>Nenhum programa abre links %1</translation>
    </message>
    <message>
        <source>Open with %1?</source>
        <translation>Abrir com %1?</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>Não existe mais</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>Nenhum programa abre %1</translation>
    </message>
</context>
<context>
    <name>ravelo::NearbySend</name>
    <message>
        <source>Pair a device in KDE Connect, or install Blueman, to send files to it</source>
        <translation>Pareie um aparelho no KDE Connect, ou instale o Blueman, para enviar arquivos a ele</translation>
    </message>
</context>
<context>
    <name>ravelo::Notes</name>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>ravelo::Notices</name>
    <message>
        <source>Not deleted from the disk:</source>
        <translation>Não foi excluído do disco:</translation>
    </message>
    <message>
        <source>Saved again.</source>
        <translation>Salvo de novo.</translation>
    </message>
    <message>
        <source>This looks like a secret: %1.</source>
        <translation>Isto parece um segredo: %1.</translation>
    </message>
    <message>
        <source>Such texts are never written to disk and soon forgotten.</source>
        <translation>Textos assim nunca são gravados no disco e logo são esquecidos.</translation>
    </message>
    <message>
        <source>Keep such texts</source>
        <translation>Guardar textos assim</translation>
    </message>
    <message>
        <source>Not saved any more:</source>
        <translation>Não é mais salvo:</translation>
    </message>
    <message>
        <source>Not saved for %1 minute:</source>
        <translation>Sem salvar há %1 minuto:</translation>
    </message>
    <message>
        <source>Not saved for %1 minutes:</source>
        <translation>Sem salvar há %1 minutos:</translation>
    </message>
    <message>
        <source>%1. Nothing is lost while Ravelo runs.</source>
        <translation>%1. Nada se perde enquanto o Ravelo estiver aberto.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar de novo</translation>
    </message>
    <message>
        <source>Saved copy put aside:</source>
        <translation>Cópia salva posta de lado:</translation>
    </message>
    <message>
        <source>%1, in Ravelo’s data folder. The history starts empty.</source>
        <translation>%1, na pasta de dados do Ravelo. O histórico começa vazio.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Preferences put aside:</source>
        <translation>Ajustes postos de lado:</translation>
    </message>
    <message>
        <source>%1. Settings are back at their defaults.</source>
        <translation>%1. Os ajustes voltaram ao padrão.</translation>
    </message>
</context>
<context>
    <name>ravelo::OnboardingController</name>
    <message>
        <source>Ravelo Setup</source>
        <translation>Configuração do Ravelo</translation>
    </message>
</context>
<context>
    <name>ravelo::PaceNotes</name>
    <message>
        <source>%1 min.</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dias</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min.</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1, %2 before the reset</source>
        <translation>%1, %2 antes de resetar</translation>
    </message>
    <message>
        <source>Lasts until the reset</source>
        <translation>Dura até resetar</translation>
    </message>
    <message>
        <source>Last day: +%1%</source>
        <translation>Último dia: +%1%</translation>
    </message>
    <message>
        <source>Last hour: +%1%</source>
        <translation>Última hora: +%1%</translation>
    </message>
</context>
<context>
    <name>ravelo::PaceText</name>
    <message>
        <source>at this pace full at %1</source>
        <translation>nesse ritmo, cheio às %1</translation>
    </message>
    <message>
        <source>at this pace full on %1</source>
        <translation>nesse ritmo, cheio %1</translation>
    </message>
</context>
<context>
    <name>ravelo::PastePermission</name>
    <message>
        <source>You did not allow Ravelo to type, so it only copies.</source>
        <translation>Você não permitiu que o Ravelo digite, por isso ele só copia.</translation>
    </message>
    <message>
        <source>Into the window you came from. The desktop asks you first whether to allow remote interaction.</source>
        <translation>Na janela de onde você veio. O ambiente pergunta antes se pode permitir interação remota.</translation>
    </message>
    <message>
        <source>Only copies: the desktop did not answer when Ravelo asked for permission to type.</source>
        <translation>Só copia: o ambiente não respondeu quando o Ravelo pediu permissão para digitar.</translation>
    </message>
</context>
<context>
    <name>ravelo::Pausing</name>
    <message>
        <source>Paused</source>
        <translation>Pausada</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Capture resumed</source>
        <translation>Captura retomada</translation>
    </message>
    <message>
        <source>Next copy will be ignored</source>
        <translation>A próxima cópia será ignorada</translation>
    </message>
</context>
<context>
    <name>ravelo::PeakText</name>
    <message>
        <source>PEAK · ends %1</source>
        <translation>PICO · termina %1</translation>
    </message>
    <message>
        <source>h:mm Ap</source>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>OFF-PEAK · peak in %1</source>
        <translation>FORA DE PICO · pico em %1</translation>
    </message>
</context>
<context>
    <name>ravelo::ReceivedModel</name>
    <message>
        <source>just now</source>
        <translation>agora mesmo</translation>
    </message>
</context>
<context>
    <name>ravelo::SecondPlan</name>
    <message>
        <source>No such folder</source>
        <translation>Essa pasta não existe</translation>
    </message>
    <message>
        <source>That is the first account</source>
        <translation>Essa é a primeira conta</translation>
    </message>
    <message>
        <source>No login there</source>
        <translation>Não há login nessa pasta</translation>
    </message>
</context>
<context>
    <name>ravelo::SecretForm</name>
    <message>
        <source>OpenSSH private key</source>
        <translation>Chave privada OpenSSH</translation>
    </message>
    <message>
        <source>Private key</source>
        <translation>Chave privada</translation>
    </message>
    <message>
        <source>GitHub token</source>
        <translation>Token do GitHub</translation>
    </message>
    <message>
        <source>GitLab token</source>
        <translation>Token do GitLab</translation>
    </message>
    <message>
        <source>AWS key</source>
        <translation>Chave da AWS</translation>
    </message>
    <message>
        <source>Slack token</source>
        <translation>Token do Slack</translation>
    </message>
    <message>
        <source>Stripe key</source>
        <translation>Chave do Stripe</translation>
    </message>
    <message>
        <source>Anthropic key</source>
        <translation>Chave da Anthropic</translation>
    </message>
    <message>
        <source>OpenAI key</source>
        <translation>Chave da OpenAI</translation>
    </message>
    <message>
        <source>Google key</source>
        <translation>Chave do Google</translation>
    </message>
    <message>
        <source>JSON Web Token</source>
        <translation>JSON Web Token</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Número de cartão</translation>
    </message>
    <message>
        <source>Key-like word</source>
        <translation>Palavra parecida com chave</translation>
    </message>
</context>
<context>
    <name>ravelo::Sending</name>
    <message>
        <source>Could not send to %1</source>
        <translation>Não foi possível enviar para %1</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Enviado para %1</translation>
    </message>
    <message>
        <source>Sent %1 of %2 to %3</source>
        <translation>%1 de %2 enviados para %3</translation>
    </message>
    <message>
        <source>A folder cannot be sent, only files</source>
        <translation>Uma pasta não pode ser enviada, só arquivos</translation>
    </message>
    <message>
        <source>Folders cannot be sent, only files</source>
        <translation>Pastas não podem ser enviadas, só arquivos</translation>
    </message>
    <message>
        <source>Could not send</source>
        <translation>Não foi possível enviar</translation>
    </message>
</context>
<context>
    <name>ravelo::SettingsWindow</name>
    <message>
        <source>1 snippet exported.</source>
        <translation>1 trecho exportado.</translation>
    </message>
    <message>
        <source>%1 snippets exported.</source>
        <translation>%1 trechos exportados.</translation>
    </message>
    <message>
        <source>All of them are there already.</source>
        <translation>Todos já estão aqui.</translation>
    </message>
    <message>
        <source>1 snippet imported.</source>
        <translation>1 trecho importado.</translation>
    </message>
    <message>
        <source>%1 snippets imported.</source>
        <translation>%1 trechos importados.</translation>
    </message>
    <message>
        <source>Ravelo Settings</source>
        <translation>Ajustes do Ravelo</translation>
    </message>
    <message>
        <source>On %1, also start ravelo from its configuration file.</source>
        <translation>No %1, inicie o ravelo também pelo arquivo de configuração dele.</translation>
    </message>
</context>
<context>
    <name>ravelo::ShelfContents</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 selecionados</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Desmarcar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar todos</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removido</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 removidos</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Restored ✓</source>
        <translation>Restaurado ✓</translation>
    </message>
</context>
<context>
    <name>ravelo::ShelfFiles</name>
    <message>
        <source>Shelf</source>
        <translation>Prateleira</translation>
    </message>
</context>
<context>
    <name>ravelo::ShortcutChoice</name>
    <message>
        <source>Letters and digits need Ctrl, Alt or Super.</source>
        <translation>Letras e números precisam de Ctrl, Alt ou Super.</translation>
    </message>
    <message>
        <source>Programs copy and paste with these keys. Press others.</source>
        <translation>Os programas copiam e colam com estas teclas. Pressione outras.</translation>
    </message>
    <message>
        <source>Escape cancels, Backspace clears.</source>
        <translation>Esc cancela, Backspace limpa.</translation>
    </message>
    <message>
        <source>Click, then press the keys to open Ravelo with.</source>
        <translation>Clique e pressione as teclas que vão abrir o Ravelo.</translation>
    </message>
    <message>
        <source>Waiting for the desktop…</source>
        <translation>Aguardando o ambiente…</translation>
    </message>
    <message>
        <source>Click, then press new keys to change it.</source>
        <translation>Para mudar, clique e pressione outras teclas.</translation>
    </message>
    <message>
        <source>The desktop has registered “%1”. Click, then press new keys to change it.</source>
        <translation>A área de trabalho registrou “%1”. Clique e pressione novas teclas para mudar.</translation>
    </message>
    <message>
        <source>The desktop has assigned no keys to it; another program may have them. Click, then press other keys, or choose some in the desktop’s settings.</source>
        <translation>A área de trabalho não atribuiu teclas; talvez outro programa as use. Clique e pressione outras, ou escolha nas configurações da área de trabalho.</translation>
    </message>
    <message>
        <source>Taken by another program. Click, then press other keys.</source>
        <translation>Em uso por outro programa. Clique e pressione outras teclas.</translation>
    </message>
    <message>
        <source>Not accepted. Click, then press other keys.</source>
        <translation>Não foi aceito. Clique e pressione outras teclas.</translation>
    </message>
    <message>
        <source>This desktop lets no program take keys. Put this line into %1’s configuration:</source>
        <translation>Este ambiente não cede teclas a programas. Ponha esta linha na configuração do %1:</translation>
    </message>
    <message>
        <source>This desktop lets no program take keys. Set a key for this command in its keyboard settings:</source>
        <translation>Este ambiente não cede teclas a programas. Defina uma tecla para este comando nos ajustes de teclado:</translation>
    </message>
</context>
<context>
    <name>ravelo::ShortcutsPortal</name>
    <message>
        <source>Open or close Ravelo</source>
        <translation>Abrir ou fechar o Ravelo</translation>
    </message>
</context>
<context>
    <name>ravelo::Sketch</name>
    <message>
        <source>The sketch is full</source>
        <translation>O esboço está cheio</translation>
    </message>
    <message>
        <source>Sketch cleared</source>
        <translation>Esboço limpo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
</context>
<context>
    <name>ravelo::SnippetFile</name>
    <message>
        <source>The file would have more than 16 MB. Snippets without their images need far less.</source>
        <translation>O arquivo teria mais de 16 MB. Trechos sem imagens ocupam bem menos.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Não foi possível ler o arquivo.</translation>
    </message>
    <message>
        <source>The file has more than 16 MB.</source>
        <translation>O arquivo tem mais de 16 MB.</translation>
    </message>
    <message>
        <source>Snippet %1: %2</source>
        <translation>Trecho %1: %2</translation>
    </message>
    <message>
        <source>it has no title.</source>
        <translation>não tem título.</translation>
    </message>
    <message>
        <source>it has no text.</source>
        <translation>não tem texto.</translation>
    </message>
    <message>
        <source>its image is damaged.</source>
        <translation>a imagem está danificada.</translation>
    </message>
    <message>
        <source>The file is damaged: it is no JSON from character %1 on.</source>
        <translation>O arquivo está danificado: a partir do caractere %1 não é JSON.</translation>
    </message>
    <message>
        <source>The file has no snippets of Ravelo.</source>
        <translation>O arquivo não tem trechos do Ravelo.</translation>
    </message>
    <message>
        <source>The file was written by a newer Ravelo.</source>
        <translation>O arquivo foi gravado por um Ravelo mais novo.</translation>
    </message>
    <message>
        <source>There are no snippets in the file.</source>
        <translation>Não há trechos no arquivo.</translation>
    </message>
    <message>
        <source>The file has more than 1,000 snippets.</source>
        <translation>O arquivo tem mais de 1.000 trechos.</translation>
    </message>
    <message>
        <source>The image of “%1” is damaged.</source>
        <translation>A imagem de “%1” está danificada.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>Nada foi importado: %1</translation>
    </message>
    <message>
        <source>The image of “%1” cannot be read.</source>
        <translation>Não foi possível ler a imagem de “%1”.</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Não foi exportado: %1</translation>
    </message>
</context>
<context>
    <name>ravelo::Snippets</name>
    <message>
        <source>Snippet deleted</source>
        <translation>Trecho excluído</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>%1 excluídos</translation>
    </message>
</context>
<context>
    <name>ravelo::StatusItemController</name>
    <message>
        <source>Open Ravelo</source>
        <translation>Abrir o Ravelo</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Set Up Ravelo Again…</source>
        <translation>Configurar o Ravelo de novo…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar atualizações…</translation>
    </message>
    <message>
        <source>Quit Ravelo</source>
        <translation>Sair do Ravelo</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>Retomar captura</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>Pausar captura</translation>
    </message>
    <message>
        <source>Pause for 15 minutes</source>
        <translation>Pausar por 15 minutos</translation>
    </message>
    <message>
        <source>Pause for an hour</source>
        <translation>Pausar por uma hora</translation>
    </message>
    <message>
        <source>Pause until resumed</source>
        <translation>Pausar até retomar</translation>
    </message>
    <message>
        <source>Capture paused until %1</source>
        <translation>Captura pausada até %1</translation>
    </message>
    <message>
        <source>Capture paused</source>
        <translation>Captura pausada</translation>
    </message>
</context>
<context>
    <name>ravelo::StatusText</name>
    <message>
        <source>Last activity %1</source>
        <translation>Última atividade: %1</translation>
    </message>
    <message>
        <source>5h session</source>
        <translation>Sessão de 5h</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>%1: 5h %2 · week %3</source>
        <translation>%1: 5h %2 · semana %3</translation>
    </message>
</context>
<context>
    <name>ravelo::Store</name>
    <message>
        <source>too large to keep in memory</source>
        <translation>grande demais para a memória</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 não pôde ser removido</translation>
    </message>
    <message>
        <source>the history was cleared</source>
        <translation>o histórico foi limpo</translation>
    </message>
    <message>
        <source>what is stored was written by a newer Ravelo</source>
        <translation>o que está guardado é de um Ravelo mais novo</translation>
    </message>
    <message>
        <source>what is stored is encrypted, and its key is gone</source>
        <translation>o que está guardado é criptografado, e a chave se perdeu</translation>
    </message>
    <message>
        <source>what is stored was erased meanwhile</source>
        <translation>o que estava guardado foi apagado nesse meio-tempo</translation>
    </message>
</context>
<context>
    <name>ravelo::StoreNotices</name>
    <message>
        <source>New copies are sealed until then.</source>
        <translation>Novas cópias ficam lacradas até lá.</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Desbloquear…</translation>
    </message>
    <message>
        <source>The key stayed in memory while the screen was locked:</source>
        <translation>A chave ficou na memória enquanto a tela estava bloqueada:</translation>
    </message>
    <message>
        <source>A copied image was not kept:</source>
        <translation>Uma imagem copiada não foi guardada:</translation>
    </message>
    <message>
        <source>New copies are sealed until the passphrase is typed.</source>
        <translation>Novas cópias ficam lacradas até que a frase secreta seja digitada.</translation>
    </message>
</context>
<context>
    <name>ravelo::Toast</name>
    <message>
        <source>Copied ✓</source>
        <translation>Copiado ✓</translation>
    </message>
</context>
<context>
    <name>ravelo::Transfers</name>
    <message>
        <source>Another export or import is running.</source>
        <translation>Outra exportação ou importação está em andamento.</translation>
    </message>
    <message>
        <source>What is stored is encrypted: unlock it first.</source>
        <translation>O que está guardado é criptografado: desbloqueie primeiro.</translation>
    </message>
    <message>
        <source>Not saved yet: %1</source>
        <translation>Ainda não foi salvo: %1</translation>
    </message>
    <message>
        <source>Nothing was imported: what is stored was locked or erased meanwhile.</source>
        <translation>Nada foi importado: o que está guardado foi bloqueado ou apagado nesse meio-tempo.</translation>
    </message>
</context>
<context>
    <name>ravelo::UpdateText</name>
    <message>
        <source>Cannot check for updates</source>
        <translation>Não é possível buscar atualizações</translation>
    </message>
    <message>
        <source>PackageKit is not available. Update Ravelo with your package manager.</source>
        <translation>O PackageKit não está disponível. Atualize o Ravelo com o seu gerenciador de pacotes.</translation>
    </message>
    <message>
        <source>Ravelo was not installed from a repository</source>
        <translation>O Ravelo não veio de um repositório</translation>
    </message>
    <message>
        <source>So the system does not know of newer versions. Install the newest package over this one, or build it again.</source>
        <translation>Por isso o sistema não conhece versões mais novas. Instale o pacote mais novo sobre este, ou compile de novo.</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>Não permitido</translation>
    </message>
    <message>
        <source>Permission was denied, or polkit, which grants it, is not running. Update Ravelo with your package manager.</source>
        <translation>A permissão foi negada, ou o polkit, que a concede, não está ativo. Atualize o Ravelo com o seu gerenciador de pacotes.</translation>
    </message>
    <message>
        <source>The update failed</source>
        <translation>A atualização falhou</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando atualizações…</translation>
    </message>
    <message>
        <source>Ravelo is up to date</source>
        <translation>O Ravelo está atualizado</translation>
    </message>
    <message>
        <source>You have Ravelo %1.</source>
        <translation>Você tem o Ravelo %1.</translation>
    </message>
    <message>
        <source>%1 is available</source>
        <translation>%1 está disponível</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Você tem a %1.</translation>
    </message>
    <message>
        <source>Installing %1…</source>
        <translation>Instalando %1…</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 está instalado</translation>
    </message>
    <message>
        <source>Quit Ravelo and start it again to use it.</source>
        <translation>Saia do Ravelo e abra-o de novo para usá-lo.</translation>
    </message>
</context>
<context>
    <name>ravelo::UpdateWindow</name>
    <message>
        <source>Ravelo Updates</source>
        <translation>Atualizações do Ravelo</translation>
    </message>
</context>
<context>
    <name>ravelo::Usage</name>
    <message>
        <source>read %1</source>
        <translation>lido %1</translation>
    </message>
</context>
<context>
    <name>ravelo::UsageText</name>
    <message>
        <source>sem dados</source>
        <translation>sem dados</translation>
    </message>
    <message>
        <source>reseta em %1</source>
        <translation>reseta em %1</translation>
    </message>
</context>
<context>
    <name>ravelo::VaultView</name>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>Aguardando o chaveiro…</translation>
    </message>
    <message>
        <source>No keyring answers</source>
        <translation>Nenhum chaveiro responde</translation>
    </message>
    <message>
        <source>The key is not in the keyring</source>
        <translation>A chave não está no chaveiro</translation>
    </message>
    <message>
        <source>Your clips are encrypted</source>
        <translation>Seus itens estão criptografados</translation>
    </message>
    <message>
        <source>Your clips were stored by a newer Ravelo</source>
        <translation>Seus itens são de um Ravelo mais novo</translation>
    </message>
    <message>
        <source>The key file is missing or damaged</source>
        <translation>O arquivo da chave falta ou está danificado</translation>
    </message>
    <message>
        <source>Your clips are encrypted. They are back as soon as it is unlocked.</source>
        <translation>Seus itens estão criptografados. Voltam assim que ele for desbloqueado.</translation>
    </message>
    <message>
        <source>Ravelo’s key is kept there. Start it, or log in again.</source>
        <translation>A chave do Ravelo fica lá. Inicie-o, ou entre de novo na sessão.</translation>
    </message>
    <message>
        <source>Type the passphrase to open them.</source>
        <translation>Digite a frase secreta para abri-los.</translation>
    </message>
    <message>
        <source>Nothing was overwritten.</source>
        <translation>Nada foi sobrescrito.</translation>
    </message>
</context>
<context>
    <name>ravelo::Wording</name>
    <message>
        <source>en</source>
        <translation>pt_BR</translation>
    </message>
</context>
</TS>
