<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Background</name>
    <message>
        <source>the system gives this program no thread, because too many processes run for this user or in this container; end some, or have the limit raised (ulimit -u), and try again</source>
        <translation>このユーザーまたはコンテナーで動いているプロセスが多すぎるため、システムがこのプログラムにスレッドを割り当てられません。いくつか終了するか、上限（ulimit -u）を上げてもらってから、やり直してください</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>a PDF file has room for one job: add --join, or name a folder</source>
        <translation>PDF ファイル1つに入るジョブは1つです。--join を加えるか、フォルダーを指定してください</translation>
    </message>
    <message>
        <source>write a PDF of what would be printed; with the
name of a folder, document.pdf, options and
ticket.plist into it, or into a folder there for
each of several jobs</source>
        <translation>印刷されるものを PDF に書き出す。フォルダー名なら
document.pdf、options、ticket.plist をその中に。
複数のジョブならその中のそれぞれのフォルダーに</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message numerus="yes">
        <source>At most %n characters fit here.</source>
        <translation>
            <numerusform>ここに入力できるのは%n文字までです。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room for more here.</source>
        <translation>ここにはこれ以上入力できません。</translation>
    </message>
    <message>
        <source>This character cannot be used here.</source>
        <translation>この文字はここでは使えません。</translation>
    </message>
</context>
<context>
    <name>Delivery</name>
    <message>
        <source>check that it runs (lpstat -r), or name another one with CUPS_SERVER</source>
        <translation>動作しているかどうかを確認する（lpstat -r）か、CUPS_SERVERで別のサーバーを指定してください</translation>
    </message>
    <message>
        <source>nothing takes connections there</source>
        <translation>接続を受け付けていません</translation>
    </message>
    <message>
        <source>no print server can be reached at %1: %2</source>
        <translation>プリントサーバー%1に接続できません: %2</translation>
    </message>
    <message>
        <source>the print server at %1 did not answer for %2 s</source>
        <translation>プリントサーバー%1から%2秒間応答がありません</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>the print server at %1 has no such printer; lpstat -e lists those it has</source>
        <translation>プリントサーバー%1にこのプリンターはありません。使えるプリンターはlpstat -eで確認できます</translation>
    </message>
    <message>
        <source>the print server at %1 does not answer (%2)</source>
        <translation>プリントサーバー%1が応答しません（%2）</translation>
    </message>
    <message>
        <source>the print server at %1 asks for a password, which this program cannot give; ask its administrator to let you print</source>
        <translation>プリントサーバー%1がパスワードを求めていますが、このプログラムからは送れません。印刷できるように管理者に依頼してください</translation>
    </message>
    <message>
        <source>the print server at %1 does not let you use this printer; ask its administrator</source>
        <translation>プリントサーバー%1で、このプリンターの使用が許可されていません。管理者に問い合わせてください</translation>
    </message>
    <message>
        <source>the print server at %1 said no: %2</source>
        <translation>プリントサーバー%1に拒否されました: %2</translation>
    </message>
    <message>
        <source>no printer has such a name</source>
        <translation>この名前のプリンターはありません</translation>
    </message>
    <message>
        <source>the printer’s PPD does not say that it reads tickets (*KelvoTicket: "1"): a job with a passcode would lie open in the tray; print without it, or have the queue set up with the device’s own PPD</source>
        <translation>プリンターのPPDに、チケットを読み取れるという記述（*KelvoTicket: "1"）がありません。暗証番号付きのジョブが、保護されずに排出トレイに出力されるおそれがあります。暗証番号なしで印刷するか、機器専用のPPDで印刷キューを設定し直してもらってください</translation>
    </message>
    <message>
        <source>the printer’s PPD does not say that it reads tickets (*KelvoTicket: "1"): a fax would be printed instead of sent; print without it, or have the queue set up with the device’s own PPD</source>
        <translation>プリンターのPPDに、チケットを読み取れるという記述（*KelvoTicket: "1"）がありません。ファクスが送信されずに印刷されるおそれがあります。ファクス以外で印刷するか、機器専用のPPDで印刷キューを設定し直してもらってください</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>there is nothing to print</source>
        <translation>印刷するものがありません</translation>
    </message>
    <message>
        <source>this is not a folder; name another one</source>
        <translation>これはフォルダーではありません。別のものを指定してください</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; make it first, or name another one</source>
        <translation>フォルダー%1がありません。先に作成するか、別のフォルダーを指定してください</translation>
    </message>
    <message>
        <source>the folder cannot be made (%1)</source>
        <translation>フォルダーを作成できません（%1）</translation>
    </message>
    <message>
        <source>this is not a regular file; move it away</source>
        <translation>これは通常のファイルではありません。別の場所に移動してください</translation>
    </message>
    <message>
        <source>the file is write-protected; move it away, or name another folder</source>
        <translation>ファイルが書き込み禁止になっています。別の場所に移動するか、別のフォルダーを指定してください</translation>
    </message>
    <message>
        <source>%1; nothing was printed</source>
        <translation>%1。何も印刷されていません</translation>
    </message>
    <message>
        <source>the whole document was sent as %1, but the print server at %2 did not answer for %3 s. The job may have been accepted: look with “lpstat -W all -o %4” before you print it again</source>
        <translation>文書全体を%1として送信しましたが、プリントサーバー%2から%3秒間応答がありません。ジョブは受け付けられている可能性があります。もう一度印刷する前に、「lpstat -W all -o %4」で確認してください</translation>
    </message>
    <message>
        <source>the job holds a passcode, and the print server at %1 does not offer an encrypted connection (TLS); nothing was sent. Have it switched on, or print without the passcode</source>
        <translation>ジョブに暗証番号がありますが、プリントサーバー%1は暗号化された接続（TLS）に対応していません。何も送信していません。TLSを有効にしてもらうか、暗証番号なしで印刷してください</translation>
    </message>
    <message>
        <source>the PPD that the print server at %1 has for it is damaged (%2); have the queue set up again with the device’s PPD</source>
        <translation>プリントサーバー%1にあるこのプリンターのPPDが壊れています（%2）。機器のPPDで印刷キューを設定し直してもらってください</translation>
    </message>
    <message>
        <source>the whole document was sent as %1, but the print server at %2 broke off before it answered. The job may have been accepted: look with “lpstat -W all -o %3” before you print it again</source>
        <translation>文書全体を%1として送信しましたが、プリントサーバー%2が応答する前に接続が切れました。ジョブは受け付けられている可能性があります。もう一度印刷する前に、「lpstat -W all -o %3」で確認してください</translation>
    </message>
    <message>
        <source>%1; the job could not be taken back: cancel it with “cancel %2”</source>
        <translation>%1。ジョブを取り消せませんでした。「cancel %2」で取り消してください</translation>
    </message>
    <message>
        <source>blanks, commas, quotes and special characters cannot be sent</source>
        <translation>空白、カンマ、引用符、特殊文字は送信できません</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>%1文字を超えています</translation>
    </message>
    <message>
        <source>the print server drops options of that name</source>
        <translation>この名前のオプションは、プリントサーバーが取り除きます</translation>
    </message>
    <message>
        <source>the print server would make a booklet of its own</source>
        <translation>プリントサーバーが独自に製本の処理を加えてしまいます</translation>
    </message>
    <message>
        <source>this setting cannot be sent to a print server: %1; choose another</source>
        <translation>この設定はプリントサーバーに送信できません: %1。別の設定を選んでください</translation>
    </message>
    <message>
        <source>the print server at %1 broke off while it sent the PPD; try again</source>
        <translation>プリントサーバー%1との接続が、PPDの受信中に切れました。やり直してください</translation>
    </message>
    <message>
        <source>the print server has no PPD for it: it prints with common settings only</source>
        <translation>プリントサーバーにこのプリンターのPPDがないため、一般的な設定だけで印刷します</translation>
    </message>
    <message>
        <source>the print server at %1 does not give its PPD: %2</source>
        <translation>プリントサーバー%1からPPDを取得できません: %2</translation>
    </message>
    <message>
        <source>its PPD has more than %1 bytes</source>
        <translation>PPDが%1バイトを超えています</translation>
    </message>
    <message>
        <source>the print server at %1 has an empty PPD for it; have the queue set up again with the device’s PPD</source>
        <translation>プリントサーバー%1にあるこのプリンターのPPDは空です。機器のPPDで印刷キューを設定し直してもらってください</translation>
    </message>
    <message>
        <source>this is the document itself, which would be lost; name another file</source>
        <translation>これは文書そのもので、失われてしまいます。別のファイルを指定してください</translation>
    </message>
    <message>
        <source>another file stands there that is no PDF; name another file</source>
        <translation>そこには PDF でない別のファイルがあります。別のファイルを指定してください</translation>
    </message>
    <message>
        <source>it is too late to cancel this job</source>
        <translation>このジョブを中止するには遅すぎます</translation>
    </message>
    <message>
        <source>the print server at %1 does not have this job (any more)</source>
        <translation>%1のプリントサーバーにこのジョブは（もう）ありません</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>this is not a PPD file; one begins with *PPD-Adobe</source>
        <translation>これはPPDファイルではありません。PPDファイルは*PPD-Adobeで始まります</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1行目: %2</translation>
    </message>
    <message>
        <source>more than %1 options</source>
        <translation>オプションが%1個を超えています</translation>
    </message>
    <message>
        <source>more than %1 groups</source>
        <translation>グループが%1個を超えています</translation>
    </message>
    <message>
        <source>more than %1 page sizes</source>
        <translation>用紙サイズが%1個を超えています</translation>
    </message>
    <message>
        <source>more than %1 constraints</source>
        <translation>制約が%1個を超えています</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of the option %2; get it again</source>
        <translation>%1行目: オプション%2の途中でファイルが終わっています。ファイルを入手し直してください</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of the group %2; get it again</source>
        <translation>%1行目: グループ%2の途中でファイルが終わっています。ファイルを入手し直してください</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of a text in quotes; get it again</source>
        <translation>%1行目: 引用符の中の文字列の途中でファイルが終わっています。ファイルを入手し直してください</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1バイトを超えています</translation>
    </message>
    <message>
        <source>compressed; unpack it with gunzip first</source>
        <translation>圧縮されています。先にgunzipで展開してください</translation>
    </message>
</context>
<context>
    <name>DialogParts</name>
    <message>
        <source>Panels</source>
        <translation>パネル</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>this is a folder; choose a file in it</source>
        <translation>これはフォルダーです。中のファイルを選んでください</translation>
    </message>
    <message>
        <source>this is no PDF</source>
        <translation>PDFではありません</translation>
    </message>
    <message>
        <source>it could not be turned into a sound PDF</source>
        <translation>正しいPDFに変換できませんでした</translation>
    </message>
    <message>
        <source>its pages cannot be laid out like this; choose another paper or scaling</source>
        <translation>ページをこのように割り付けることはできません。別の用紙または拡大縮小の設定を選んでください</translation>
    </message>
    <message>
        <source>the document has %1 pages, and not all that are asked for</source>
        <translation>文書は%1ページで、指定されたページの一部がありません</translation>
    </message>
    <message>
        <source>reading it took longer than %1 seconds; it may be damaged</source>
        <translation>読み込みに%1秒以上かかりました。壊れている可能性があります</translation>
    </message>
    <message>
        <source>as PDF it would be larger than %1 MB</source>
        <translation>PDFにすると%1 MBを超えます</translation>
    </message>
    <message>
        <source>the program that reads it crashed; the file is damaged, or needs more memory than it may have</source>
        <translation>読み込みプログラムが異常終了しました。ファイルが壊れているか、使用できるメモリーでは足りません</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1を起動できません: %2</translation>
    </message>
    <message numerus="yes">
        <source>The drawing shows or uses %n other file(s), which are left out: only what a drawing holds itself is printed. Embed them in it.</source>
        <translation>
            <numerusform>図面はほかのファイルを%n個使っていますが、それらは印刷されません。印刷されるのは図面自体に含まれるものだけです。図面に埋め込んでください。</numerusform>
        </translation>
    </message>
    <message>
        <source>a text of more than %1 MB is not printed</source>
        <translation>%1 MBを超えるテキストは印刷できません</translation>
    </message>
    <message>
        <source>a document of more than %1 MB is not printed</source>
        <translation>%1 MBを超える文書は印刷できません</translation>
    </message>
    <message>
        <source>a picture of more than %1 MB is not printed</source>
        <translation>%1 MBを超える画像は印刷できません</translation>
    </message>
    <message>
        <source>this is a pipe, and nothing came through it for %1 seconds; start what writes into it, or name a file</source>
        <translation>これはパイプですが、%1秒間何も送られてきません。書き込む側を起動するか、ファイルを指定してください</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>PDF, PostScript, pictures and plain text can be printed</source>
        <translation>印刷できるのは、PDF、PostScript、画像、テキストです</translation>
    </message>
    <message>
        <source>this part that reads documents is not installed beside the program; install kelvo-print anew</source>
        <translation>文書を読み込むこの部品が、プログラムと同じ場所にインストールされていません。kelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>the program that reads it gave no answer that makes sense; the file may be damaged</source>
        <translation>読み込みプログラムの応答が正しくありません。ファイルが壊れている可能性があります</translation>
    </message>
    <message>
        <source>this is not the part that reads documents of kelvo-print %1; install kelvo-print anew</source>
        <translation>文書を読み込むこの部品は、kelvo-print %1のものではありません。kelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>reading it needs more than %1 MB of memory</source>
        <translation>読み込みに%1 MBを超えるメモリーが必要です</translation>
    </message>
    <message>
        <source>the program that reads it ended with status %1: %2</source>
        <translation>読み込みプログラムがステータス%1で終了しました: %2</translation>
    </message>
    <message>
        <source>this is a ZIP archive or an office document</source>
        <translation>ZIPアーカイブまたはオフィス文書です</translation>
    </message>
    <message>
        <source>this is an office document of an old kind</source>
        <translation>古い形式のオフィス文書です</translation>
    </message>
    <message>
        <source>this is a gzip-compressed file</source>
        <translation>gzipで圧縮されたファイルです</translation>
    </message>
    <message>
        <source>this is a program</source>
        <translation>プログラムです</translation>
    </message>
    <message>
        <source>this is ready-made printer data</source>
        <translation>プリンター用に作成済みのデータです</translation>
    </message>
    <message>
        <source>this is ready-made printer data (PCL)</source>
        <translation>プリンター用に作成済みのデータ（PCL）です</translation>
    </message>
    <message>
        <source>this is a file of a kind that is not known here</source>
        <translation>不明な種類のファイルです</translation>
    </message>
    <message>
        <source>the document holds an older file %1 that could not be taken out; save it as a new PDF without attached files, and print that</source>
        <translation>文書に含まれている古いファイル%1を取り除けませんでした。添付ファイルのない新しいPDFとして保存して、それを印刷してください</translation>
    </message>
    <message>
        <source>the PDF is damaged and cannot be repaired: %1</source>
        <translation>PDFが壊れていて、修復できません: %1</translation>
    </message>
    <message>
        <source>the PDF cannot be read: %1</source>
        <translation>PDFを読み込めません: %1</translation>
    </message>
    <message>
        <source>the author of the document does not allow printing it</source>
        <translation>文書の作成者が印刷を許可していません</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>文書にページがありません</translation>
    </message>
    <message>
        <source>%1 pictures cannot be read here; install the package “qt6-image-formats-plugins”</source>
        <translation>%1形式の画像は読み込めません。パッケージ「qt6-image-formats-plugins」をインストールしてください</translation>
    </message>
    <message>
        <source>a picture of %1 by %2 pixels is not printed; the limit is %3 million</source>
        <translation>%1 × %2ピクセルの画像は印刷できません。上限は%3百万ピクセルです</translation>
    </message>
    <message>
        <source>page %1 of the picture cannot be read: %2</source>
        <translation>画像の%1ページ目を読み込めません: %2</translation>
    </message>
    <message>
        <source>the picture cannot be read: %1</source>
        <translation>画像を読み込めません: %1</translation>
    </message>
    <message>
        <source>the drawing cannot be read</source>
        <translation>図面を読み込めません</translation>
    </message>
    <message>
        <source>no font here has the character U+%1 in line %2, which Unicode does not define; install the font that the text was written with, or take the character out</source>
        <translation>%2行目の文字U+%1は、どのフォントにもありません。Unicodeで定義されていない文字です。テキストの作成に使われたフォントをインストールするか、文字を取り除いてください</translation>
    </message>
    <message>
        <source>no font here has the %1 character “%2” (U+%3) in line %4; install one, for example with the package “%5”</source>
        <comment>%1: Arabic</comment>
        <translation>%4行目の文字「%2」（%1、U+%3）は、どのフォントにもありません。この文字を含むフォントをインストールしてください（例: パッケージ「%5」）</translation>
    </message>
    <message>
        <source>no font here has the character “%1” (U+%2) in line %3; install one, for example with the package “%4”</source>
        <translation>%3行目の文字「%1」（U+%2）は、どのフォントにもありません。この文字を含むフォントをインストールしてください（例: パッケージ「%4」）</translation>
    </message>
    <message>
        <source>this begins like a text but holds bytes that no text has</source>
        <translation>テキストのように始まっていますが、テキストにはないバイトが含まれています</translation>
    </message>
    <message>
        <source>a text of more than %1 pages is not printed</source>
        <translation>%1ページを超えるテキストは印刷できません</translation>
    </message>
    <message>
        <source>the folder for temporary files is full (%1); remove what is no longer needed there, or set TMPDIR to a folder on another disk</source>
        <translation>一時ファイル用のフォルダーがいっぱいです（%1）。不要なものを削除するか、別のディスクのフォルダーをTMPDIRに設定してください</translation>
    </message>
    <message>
        <source>the folder for temporary files is missing or cannot be written (%1); set TMPDIR to another one</source>
        <translation>一時ファイル用のフォルダーがないか、書き込めません（%1）。別のフォルダーをTMPDIRに設定してください</translation>
    </message>
    <message>
        <source>page range “%1”</source>
        <translation>ページ範囲「%1」</translation>
    </message>
    <message>
        <source>pages are written like this: 1-3, 7, 9-</source>
        <translation>ページは次のように指定します: 1-3, 7, 9-</translation>
    </message>
    <message>
        <source>pages begin at 1</source>
        <translation>ページは1から始まります</translation>
    </message>
    <message>
        <source>the document has pages 1 to %1</source>
        <translation>文書のページは1～%1です</translation>
    </message>
    <message>
        <source>all ranges together may name %1 pages at most</source>
        <translation>範囲で指定できるのは合計%1ページまでです</translation>
    </message>
    <message>
        <source>make it smaller, or choose another one</source>
        <translation>小さくするか、別のものを選んでください</translation>
    </message>
    <message>
        <source>choose another picture, or repair this one</source>
        <translation>別の画像を選ぶか、この画像を修復してください</translation>
    </message>
    <message>
        <source>this is a PDF document</source>
        <translation>PDF文書です</translation>
    </message>
    <message>
        <source>this is a PostScript document</source>
        <translation>PostScript文書です</translation>
    </message>
    <message>
        <source>this is a WebP picture</source>
        <translation>WebP画像です</translation>
    </message>
    <message>
        <source>this is a text</source>
        <translation>テキストです</translation>
    </message>
    <message>
        <source>this is no file, but a folder or a device</source>
        <translation>ファイルではなく、フォルダーかデバイスです</translation>
    </message>
    <message>
        <source>a picture of more than %1 MB is not taken</source>
        <translation>%1 MBを超える画像は使えません</translation>
    </message>
    <message>
        <source>choose a picture in PNG, JPEG, GIF, BMP, TIFF or SVG format</source>
        <translation>PNG、JPEG、GIF、BMP、TIFF、SVGのいずれかの形式の画像を選んでください</translation>
    </message>
    <message>
        <source>printing PostScript needs Ghostscript; install the package “ghostscript”</source>
        <translation>PostScriptの印刷にはGhostscriptが必要です。パッケージ「ghostscript」をインストールしてください</translation>
    </message>
    <message>
        <source>Ghostscript cannot read the PostScript: %1</source>
        <translation>GhostscriptでPostScriptを読み込めません: %1</translation>
    </message>
    <message>
        <source>the document is locked with a password</source>
        <translation>文書がパスワードで保護されています</translation>
    </message>
    <message>
        <source>the document is locked with another password</source>
        <translation>文書は別のパスワードで保護されています</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>the title asked for, and the file’s name</comment>
        <translation>%1 – %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>what the first document is called</comment>
        <translation>
            <numerusform>%1ほか%n件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drawing</name>
    <message>
        <source>this part that draws is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>描画を行うこの部品が、プログラムのライブラリーと同じ場所にインストールされていません。kelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>this part that draws cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>描画を行うこの部品を読み込めません（%1）。必要なパッケージとともにkelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>this is not the part that draws of kelvo-print %1; install kelvo-print anew</source>
        <translation>描画を行うこの部品は、kelvo-print %1のものではありません。kelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>a side of %1 points; draw one of more than 0 and at most %2</source>
        <translation>1辺が%1ポイントです。0より大きく%2以下にしてください</translation>
    </message>
    <message>
        <source>it cannot be shown: what was drawn is no PDF of a page</source>
        <translation>表示できません。描画されたものが、1ページのPDFではありません</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>not a path</source>
        <translation>パスではありません</translation>
    </message>
    <message>
        <source>the lock file is a symbolic link; remove it</source>
        <translation>ロックファイルがシンボリックリンクです。削除してください</translation>
    </message>
    <message>
        <source>the lock file is not a regular file; remove it</source>
        <translation>ロックファイルが通常のファイルではありません。削除してください</translation>
    </message>
    <message>
        <source>another program is writing it; try again</source>
        <translation>別のプログラムが書き込んでいます。やり直してください</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1: damaged, kept as %2 (%3)</source>
        <translation>%1: 壊れているため、%2として残しました（%3）</translation>
    </message>
    <message>
        <source>damaged, and too many damaged copies lie beside it; remove them</source>
        <translation>壊れています。同じ場所に壊れたコピーが多すぎるため、削除してください</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>辞書ではありません</translation>
    </message>
    <message>
        <source>make room there, or name another place</source>
        <translation>空きを作るか、別の場所を指定してください</translation>
    </message>
    <message>
        <source>change the rights there, or name a place that you may write to</source>
        <translation>アクセス権を変更するか、書き込みが許可されている場所を指定してください</translation>
    </message>
    <message>
        <source>name another place</source>
        <translation>別の場所を指定してください</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1バイトを超えています</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no element of a property list</source>
        <translation>&lt;%1&gt;はプロパティリストの要素ではありません</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands inside a value</source>
        <translation>&lt;%1&gt;が値の中にあります</translation>
    </message>
    <message>
        <source>&lt;plist&gt; must be the outermost element</source>
        <translation>&lt;plist&gt;は最も外側の要素でなければなりません</translation>
    </message>
    <message>
        <source>&lt;key&gt; stands where a value is due</source>
        <translation>値が必要な場所に&lt;key&gt;があります</translation>
    </message>
    <message>
        <source>a value stands where &lt;key&gt; is due</source>
        <translation>&lt;key&gt;が必要な場所に値があります</translation>
    </message>
    <message>
        <source>holds more than one value</source>
        <translation>値が2つ以上あります</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>値が%1個を超えています</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>入れ子が%1段を超えています</translation>
    </message>
    <message>
        <source>the key “%1” has no value</source>
        <translation>キー「%1」に値がありません</translation>
    </message>
    <message>
        <source>holds no value</source>
        <translation>値がありません</translation>
    </message>
    <message>
        <source>text stands outside a value</source>
        <translation>値の外に文字があります</translation>
    </message>
    <message>
        <source>“%1” is no signed 64-bit integer</source>
        <translation>「%1」は64ビットの符号付き整数ではありません</translation>
    </message>
    <message>
        <source>“%1” is no finite number</source>
        <translation>「%1」は有限の数値ではありません</translation>
    </message>
    <message>
        <source>“%1” is no date of the form 2024-01-31T12:00:00Z</source>
        <translation>「%1」は2024-01-31T12:00:00Zの形式の日時ではありません</translation>
    </message>
    <message>
        <source>“%1” is no base64</source>
        <translation>「%1」はBase64ではありません</translation>
    </message>
    <message>
        <source>“%1” is no content of &lt;true/&gt; or &lt;false/&gt;</source>
        <translation>「%1」は&lt;true/&gt;や&lt;false/&gt;の内容にできません</translation>
    </message>
    <message>
        <source>the key “%1” stands twice</source>
        <translation>キー「%1」が重複しています</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>declares an entity</source>
        <translation>実体を宣言しています</translation>
    </message>
    <message>
        <source>uses the unknown entity “%1”</source>
        <translation>不明な実体「%1」を使っています</translation>
    </message>
    <message>
        <source>not XML</source>
        <translation>XMLではありません</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1、%2行目</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>a binary property list; only the XML form is read</source>
        <translation>バイナリー形式のプロパティリストです。読み取れるのはXML形式だけです</translation>
    </message>
    <message>
        <source>property list</source>
        <translation>プロパティリスト</translation>
    </message>
    <message>
        <source>the key holds a character that XML cannot hold</source>
        <translation>キーに、XMLで表せない文字が含まれています</translation>
    </message>
    <message>
        <source>the string holds a character that XML cannot hold</source>
        <translation>文字列に、XMLで表せない文字が含まれています</translation>
    </message>
    <message>
        <source>a date outside the years 1 to 9999</source>
        <translation>日時が1年から9999年の範囲にありません</translation>
    </message>
    <message>
        <source>a number that is not finite</source>
        <translation>有限でない数値です</translation>
    </message>
    <message>
        <source>an integer beyond signed 64 bits</source>
        <translation>64ビットの符号付き整数の範囲を超えています</translation>
    </message>
    <message>
        <source>a property list holds no %1</source>
        <translation>プロパティリストに%1は入れられません</translation>
    </message>
    <message>
        <source>there is no value</source>
        <translation>値がありません</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>ありません</translation>
    </message>
    <message>
        <source>not an integer</source>
        <translation>整数ではありません</translation>
    </message>
    <message>
        <source>%1; this program reads version %2</source>
        <translation>%1。このプログラムで読み取れるのはバージョン%2です</translation>
    </message>
    <message>
        <source>holds an entry without a key</source>
        <translation>キーのない項目があります</translation>
    </message>
    <message>
        <source>not a string</source>
        <translation>文字列ではありません</translation>
    </message>
    <message>
        <source>not true or false</source>
        <translation>真偽値ではありません</translation>
    </message>
    <message>
        <source>not an array</source>
        <translation>配列ではありません</translation>
    </message>
    <message>
        <source>holds what is no place of a ticket</source>
        <translation>チケットにない場所が含まれています</translation>
    </message>
    <message>
        <source>holds no dictionary</source>
        <translation>辞書がありません</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; make it first, or name another file</source>
        <translation>フォルダー%1がありません。先に作成するか、別のファイルを指定してください</translation>
    </message>
    <message>
        <source>nothing can be written into the folder %1 (%2)</source>
        <translation>フォルダー%1に書き込めません（%2）</translation>
    </message>
    <message>
        <source>this is not a regular file; name another one</source>
        <translation>これは通常のファイルではありません。別のファイルを指定してください</translation>
    </message>
    <message>
        <source>a file that is not a ticket stands there and is not replaced; move it away or name another file</source>
        <translation>同じ場所にチケットではないファイルがあるため、置き換えません。そのファイルを移動するか、別のファイルを指定してください</translation>
    </message>
    <message>
        <source>there is no preferences folder</source>
        <translation>ユーザー設定のフォルダーがありません</translation>
    </message>
    <message>
        <source>there is no folder for it; make ~/.local/share a folder that you can write to</source>
        <translation>保存先のフォルダーがありません。~/.local/shareを書き込みできるフォルダーにしてください</translation>
    </message>
</context>
<context>
    <name>Font</name>
    <message>
        <source>a font collection</source>
        <translation>フォントコレクションです</translation>
    </message>
    <message>
        <source>the file is no font collection</source>
        <translation>ファイルはフォントコレクションではありません</translation>
    </message>
    <message>
        <source>there is no font number %1 among its %2</source>
        <translation>%2個のフォントの中に%1番のフォントはありません</translation>
    </message>
    <message>
        <source>the tables of font number %1 are not in the file</source>
        <translation>%1番のフォントのテーブルがファイルにありません</translation>
    </message>
    <message>
        <source>the tables of font number %1 lie upon one another</source>
        <translation>%1番のフォントのテーブルが重なっています</translation>
    </message>
    <message>
        <source>the table post has names for %1 glyphs, but the font has %2</source>
        <translation>postテーブルにはグリフ%1個分の名前がありますが、フォントのグリフは%2個です</translation>
    </message>
    <message>
        <source>the table post ends within the numbers of the glyphs’ names</source>
        <translation>postテーブルが、グリフ名の番号の途中で終わっています</translation>
    </message>
    <message>
        <source>the table %1 is missing or damaged</source>
        <translation>%1テーブルがないか、壊れています</translation>
    </message>
    <message>
        <source>the table head has a wrong magic number</source>
        <translation>headテーブルのマジックナンバーが正しくありません</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>this font has no TrueType outlines</source>
        <translation>このフォントにはTrueTypeのアウトラインがありません</translation>
    </message>
    <message>
        <source>the device prints the watermark in a font of its own</source>
        <translation>機器は、ウォーターマークを機器内蔵のフォントで印刷します</translation>
    </message>
    <message>
        <source>this font is not installed</source>
        <translation>このフォントはインストールされていません</translation>
    </message>
    <message>
        <source>the watermarks’ file cannot take this font</source>
        <translation>ウォーターマークのファイルに、このフォントを入れられません</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Help page</source>
        <translation>ヘルプページ</translation>
    </message>
    <message>
        <source>The help has no page “%1”.</source>
        <translation>ヘルプにページ「%1」はありません。</translation>
    </message>
    <message>
        <source>This address is outside the help: %1</source>
        <translation>このアドレスはヘルプの外にあります: %1</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>The folder with the help pages is missing. Install the software again, or tell your administrator.</source>
        <translation>ヘルプページのフォルダーがありません。ソフトウェアをインストールし直すか、管理者に知らせてください。</translation>
    </message>
    <message>
        <source>The page “%1” is missing in %2. Install the software again, or tell your administrator.</source>
        <translation>ページ「%1」が%2にありません。ソフトウェアをインストールし直すか、管理者に知らせてください。</translation>
    </message>
    <message>
        <source>There is no help for this</source>
        <translation>この項目のヘルプはありません</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search in the help</source>
        <translation>ヘルプ内を検索</translation>
    </message>
    <message>
        <source>Pages that were found</source>
        <translation>見つかったページ</translation>
    </message>
    <message>
        <source>No page has all of these words. Type fewer of them, or only how they begin, or look at the contents.</source>
        <translation>すべての語を含むページはありません。語を減らすか、語の始めだけを入力するか、目次をご覧ください。</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) found</source>
        <translation>
            <numerusform>%nページ見つかりました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>“%1” takes no jobs.</source>
        <translation>「%1」はジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>“%1” takes no jobs: %2.</source>
        <translation>「%1」はジョブを受け付けていません: %2。</translation>
    </message>
    <message>
        <source>Choose another printer, or wait until it takes jobs again.</source>
        <translation>別のプリンターを選ぶか、ジョブを受け付けるようになるまで待ってください。</translation>
    </message>
    <message>
        <source>“%1” is stopped.</source>
        <translation>「%1」は停止しています。</translation>
    </message>
    <message>
        <source>“%1” is stopped: %2.</source>
        <translation>「%1」は停止しています: %2。</translation>
    </message>
    <message>
        <source>A job waits there until the printer is started again.</source>
        <translation>ジョブは、プリンターが再開されるまで待機します。</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2: what does not fit is cut off.</source>
        <translation>
            <numerusform>ページ%1は用紙（%2）より大きいため、はみ出す部分は印刷されません。</numerusform>
        </translation>
    </message>
    <message>
        <source>The document is damaged; what could be read of it was put together, and parts may be missing.</source>
        <translation>文書が壊れています。読み取れた部分だけで構成しているため、一部が欠けている可能性があります。</translation>
    </message>
    <message>
        <source>Compare the preview with the original, or save the document again from the program that made it.</source>
        <translation>プレビューを元の文書と比べるか、文書を作成したプログラムで保存し直してください。</translation>
    </message>
    <message>
        <source>This printer does not have: %1.</source>
        <translation>このプリンターにない設定があります: %1。</translation>
    </message>
    <message>
        <source>Not sent, for the print server has no description of this printer: %1.</source>
        <translation>プリントサーバーにこのプリンターの情報がないため、送信されない設定があります: %1。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept, to come back with a printer that has them.</source>
        <translation>
            <numerusform>%n件の設定は残り、対応するプリンターを選ぶと再び有効になります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not sent, for this printer reads no job tickets: %1.</source>
        <translation>このプリンターはジョブチケットを読み取らないため、送信されない設定があります: %1。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept; choose a printer that reads them.</source>
        <translation>
            <numerusform>%n件の設定は残ります。読み取れるプリンターを選んでください。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>%1 cannot be used together.</source>
        <translation>%1は同時に使用できません。</translation>
    </message>
    <message>
        <source>%1 cannot be used on this printer (%2).</source>
        <translation>%1は、このプリンター（%2）では使用できません。</translation>
    </message>
    <message>
        <source>Set “%1” to “%2”</source>
        <translation>「%1」を「%2」に変更</translation>
    </message>
    <message>
        <source>this printer takes no custom sizes</source>
        <translation>このプリンターではユーザー定義サイズを使えません</translation>
    </message>
    <message>
        <source>a custom size is written Custom.WIDTHxHEIGHT with in, mm, cm or pt behind it; this printer takes widths from %1 to %2 mm and heights from %3 to %4 mm</source>
        <translation>ユーザー定義サイズはCustom.幅x高さの後にin、mm、cm、ptのいずれかを付けて指定します。このプリンターで使えるのは、幅%1～%2 mm、高さ%3～%4 mmです</translation>
    </message>
    <message>
        <source>the print server has no description (PPD) of this printer, so that it cannot be asked for this</source>
        <translation>プリントサーバーにこのプリンターの情報（PPD）がないため、この設定を指定できません</translation>
    </message>
    <message>
        <source>there is no such value</source>
        <translation>この値はありません</translation>
    </message>
    <message>
        <source>this is equipment of the printer, which its administrator enters (lpadmin -p PRINTER -o …)</source>
        <translation>これはプリンターの装備で、管理者が設定します（lpadmin -p PRINTER -o …）</translation>
    </message>
    <message>
        <source>this printer has no paper %1</source>
        <translation>このプリンターに用紙%1はありません</translation>
    </message>
    <message>
        <source>this printer does not have this option</source>
        <translation>このプリンターにこのオプションはありません</translation>
    </message>
    <message>
        <source>3 is portrait, 4 landscape, 5 reverse landscape, 6 reverse portrait</source>
        <translation>3は縦、4は横、5は横(上下逆)、6は縦(上下逆)です</translation>
    </message>
    <message>
        <source>this printer does not print on both sides</source>
        <translation>このプリンターは両面印刷に対応していません</translation>
    </message>
    <message>
        <source>copies are a number from 1 to %1</source>
        <translation>部数は1～%1の数値です</translation>
    </message>
    <message>
        <source>pages are written like 1-3,7,9-</source>
        <translation>ページは 1-3,7,9- のように指定します</translation>
    </message>
    <message>
        <source>neither this printer nor kelvo-print has such an option</source>
        <translation>このプリンターにもkelvo-printにも、このオプションはありません</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>縦(上下逆)</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>横(上下逆)</translation>
    </message>
    <message>
        <source>%1 – passed on, the printer may not heed it</source>
        <translation>%1 – 送信されますが、プリンターが従わないことがあります</translation>
    </message>
    <message>
        <source>Copies: %1</source>
        <translation>部数: %1</translation>
    </message>
    <message>
        <source>Copies: %1, collated</source>
        <translation>部数: %1 (部単位)</translation>
    </message>
    <message>
        <source>Copies: %1, not collated</source>
        <translation>部数: %1 (ページ単位)</translation>
    </message>
    <message>
        <source>Pages: All</source>
        <translation>ページ: すべて</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>ページ: %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>印刷の向き: %1</translation>
    </message>
    <message>
        <source>Paper size: %1</source>
        <translation>用紙サイズ: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 – this printer does not have it</source>
        <translation>%1 – このプリンターにはありません</translation>
    </message>
    <message>
        <source>%1 – the print server has no description of this printer</source>
        <translation>%1 – プリントサーバーにこのプリンターの情報がありません</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) that the device panels add (see Ticket)</source>
        <translation>
            <numerusform>機器のパネルが加える%n項目(「チケット」を参照)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 – this printer reads no tickets</source>
        <translation>%1 – このプリンターはチケットを読み取りません</translation>
    </message>
    <message>
        <source>Cautions:</source>
        <translation>注意:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定:</translation>
    </message>
    <message>
        <source>Not sent:</source>
        <translation>送信されないもの:</translation>
    </message>
    <message>
        <source>As the printer has it:</source>
        <translation>プリンターの設定のまま:</translation>
    </message>
    <message>
        <source>Ticket:</source>
        <translation>チケット:</translation>
    </message>
    <message numerus="yes">
        <source>%n copy(s)</source>
        <translation>
            <numerusform>%n部</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%nページ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 × %2 = %n sheet(s)</source>
        <translation>
            <numerusform>%1 × %2 = %n枚</numerusform>
        </translation>
    </message>
    <message>
        <source>locked</source>
        <translation>暗証番号付き</translation>
    </message>
    <message>
        <source>fax</source>
        <translation>ファクス</translation>
    </message>
    <message>
        <source>there is no preset of this name, nor any other</source>
        <translation>この名前のプリセットはありません。ほかのプリセットもありません</translation>
    </message>
    <message>
        <source>there is no preset of this name</source>
        <translation>この名前のプリセットはありません</translation>
    </message>
    <message>
        <source>%1: this is not a ticket file</source>
        <translation>%1: チケットのファイルではありません</translation>
    </message>
    <message>
        <source>this preset is the administrator’s and cannot be changed here; save one of your own under the same name instead</source>
        <translation>このプリセットは管理者のもので、ここでは変更できません。代わりに、同じ名前で自分のプリセットを保存してください</translation>
    </message>
    <message>
        <source>a preset needs a name of one line that is not empty</source>
        <translation>プリセットの名前は、空でない1行の文字列でなければなりません</translation>
    </message>
    <message>
        <source>there is such a preset already</source>
        <translation>このプリセットはすでにあります</translation>
    </message>
    <message>
        <source>the file that stands there is no preset of this program version; move it away or take another name</source>
        <translation>同じ場所にあるファイルは、このバージョンのプリセットではありません。そのファイルを移動するか、別の名前にしてください</translation>
    </message>
    <message>
        <source>there is no home folder to keep presets in; set HOME</source>
        <translation>プリセットを保存するホームフォルダーがありません。HOMEを設定してください</translation>
    </message>
    <message>
        <source>%1; the site’s defaults are not used</source>
        <translation>%1。組織の既定の設定は使われません</translation>
    </message>
    <message>
        <source>the printer is not reached</source>
        <translation>プリンターに接続できません</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>the developer is used up</source>
        <translation>現像剤がなくなりました</translation>
    </message>
    <message>
        <source>the developer runs out</source>
        <translation>現像剤が残り少なくなっています</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>the fuser is too hot</source>
        <translation>定着部が過熱しています</translation>
    </message>
    <message>
        <source>the fuser is not hot yet</source>
        <translation>定着部の準備中です</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>toner or ink is used up</source>
        <translation>トナーまたはインクがなくなりました</translation>
    </message>
    <message>
        <source>toner or ink runs out</source>
        <translation>トナーまたはインクが残り少なくなっています</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>廃トナーボトルがまもなくいっぱいになります</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>廃トナーボトルがいっぱいです</translation>
    </message>
    <message>
        <source>there is no paper</source>
        <translation>用紙がありません</translation>
    </message>
    <message>
        <source>paper is jammed</source>
        <translation>紙が詰まっています</translation>
    </message>
    <message>
        <source>paper runs out</source>
        <translation>用紙が残り少なくなっています</translation>
    </message>
    <message>
        <source>it waits for paper</source>
        <translation>用紙の補給を待っています</translation>
    </message>
    <message>
        <source>an output tray is almost full</source>
        <translation>排出トレイがまもなくいっぱいになります</translation>
    </message>
    <message>
        <source>an output tray is full</source>
        <translation>排出トレイがいっぱいです</translation>
    </message>
    <message>
        <source>an output tray is missing</source>
        <translation>排出トレイがありません</translation>
    </message>
    <message>
        <source>the printer is switched off</source>
        <translation>プリンターの電源が入っていません</translation>
    </message>
    <message>
        <source>its memory is full</source>
        <translation>メモリーがいっぱいです</translation>
    </message>
    <message>
        <source>some of its printers are stopped</source>
        <translation>一部のプリンターが停止しています</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
    <message>
        <source>toner is used up</source>
        <translation>トナーがなくなりました</translation>
    </message>
    <message>
        <source>toner runs out</source>
        <translation>トナーが残り少なくなっています</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2。</translation>
    </message>
    <message>
        <source>Choose larger paper, or let the pages be made to fit.</source>
        <translation>より大きい用紙を選ぶか、ページを用紙に合わせてください。</translation>
    </message>
    <message numerus="yes">
        <source>Covers, inserts, exception pages and booklets count what is printed: the first page there has page(s) %1 of the document.</source>
        <translation>
            <numerusform>表紙、挿入紙、例外ページ、小冊子は印刷されるページで数えます。最初の面には文書のページ %1 があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Of these: %1</source>
        <translation>そのうち：%1</translation>
    </message>
    <message>
        <source>Order: As in the document</source>
        <translation>順序：文書のとおり</translation>
    </message>
    <message>
        <source>Order: Reversed</source>
        <translation>順序：逆順</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2, and made smaller to fit.</source>
        <translation>
            <numerusform>ページ %1 は用紙（%2）より大きいため、縮小して収めます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages per sheet: %1</source>
        <translation>1面のページ数：%1</translation>
    </message>
    <message>
        <source>Pages per sheet: %1, %2</source>
        <translation>1面のページ数：%1、%2</translation>
    </message>
    <message>
        <source>Pages per sheet: %1, %2, with borders</source>
        <translation>1面のページ数：%1、%2、枠線あり</translation>
    </message>
    <message>
        <source>Scaling: %1</source>
        <translation>拡大縮小：%1</translation>
    </message>
    <message>
        <source>a side has room for 1, 2, 4, 6, 9 or 16 pages</source>
        <translation>1面に置けるのは 1、2、4、6、9、16 ページです</translation>
    </message>
    <message>
        <source>none of these pages has an even number</source>
        <translation>これらのページに偶数ページはありません</translation>
    </message>
    <message>
        <source>none of these pages has an odd number</source>
        <translation>これらのページに奇数ページはありません</translation>
    </message>
    <message>
        <source>pages are scaled by a number from %1 to %2 percent</source>
        <translation>拡大縮小率は %1～%2 パーセントの数です</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the places on the sheet: what does not fit is cut off.</source>
        <translation>
            <numerusform>ページ %1 は用紙上の枠より大きいため、はみ出す部分は切り取られます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose fewer pages per sheet, or let the pages be made to fit.</source>
        <translation>1面のページ数を減らすか、ページを枠に合わせてください。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>On the server: held %1</source>
        <translation>サーバー上で保留: %1</translation>
    </message>
    <message>
        <source>Priority: %1</source>
        <translation>優先度: %1</translation>
    </message>
    <message>
        <source>a priority is a number from %1 to %2, the higher the sooner</source>
        <translation>優先度は%1から%2までの数で、大きいほど早く印刷されます</translation>
    </message>
    <message>
        <source>a time is written HH:MM, in UTC</source>
        <translation>時刻はUTCでHH:MMと書きます</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>プリントサーバーが印刷を取りやめました</translation>
    </message>
    <message>
        <source>held</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>held %1</source>
        <translation>%1保留</translation>
    </message>
    <message>
        <source>it takes immediate, hold, a time HH:MM in UTC, or a word of job-hold-until: %1</source>
        <translation>immediate、hold、UTCの時刻HH:MM、またはjob-hold-untilの値を指定します: %1</translation>
    </message>
    <message>
        <source>no longer on the print server, which does not keep how jobs ended</source>
        <translation>プリントサーバーにもうありません（ジョブの結果は記録されていません）</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>印刷しました</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>that is for a job that is there already; use “lp -i JOB -H %1”</source>
        <translation>これはすでにあるジョブのためのものです。「lp -i JOB -H %1」を使ってください</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>%1まで</translation>
    </message>
    <message>
        <source>until daytime (6 to 18 h)</source>
        <translation>日中（6～18時）まで</translation>
    </message>
    <message>
        <source>until somebody releases it</source>
        <translation>解放されるまで</translation>
    </message>
    <message>
        <source>until the evening (18 to 6 h)</source>
        <translation>夕方（18～6時）まで</translation>
    </message>
    <message>
        <source>until the night (18 to 6 h)</source>
        <translation>夜間（18～6時）まで</translation>
    </message>
    <message>
        <source>until the second shift (16 to 24 h)</source>
        <translation>第2シフト（16～24時）まで</translation>
    </message>
    <message>
        <source>until the third shift (0 to 8 h)</source>
        <translation>第3シフト（0～8時）まで</translation>
    </message>
    <message>
        <source>until the weekend</source>
        <translation>週末まで</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>waiting, the printer is stopped</source>
        <translation>待機中（プリンターが停止しています）</translation>
    </message>
    <message>
        <source>%1 was not cancelled: %2</source>
        <translation>%1を中止できませんでした: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) so far</source>
        <translation>
            <numerusform>これまでに%nページ</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no home folder to keep settings in; set HOME</source>
        <translation>設定を保存するホームフォルダーがありません。HOMEを設定してください</translation>
    </message>
</context>
<context>
    <name>JobDetails</name>
    <message>
        <source>Before you print</source>
        <translation>印刷前の確認</translation>
    </message>
    <message>
        <source>Set for this job</source>
        <translation>このジョブの設定</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>送信されないもの</translation>
    </message>
    <message>
        <source>As the device has it</source>
        <translation>機器の設定のまま</translation>
    </message>
    <message>
        <source>Nothing is set: the device decides everything.</source>
        <translation>設定はありません。すべて機器の設定に従います。</translation>
    </message>
    <message>
        <source>What Will Be Sent</source>
        <translation>送信内容</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>In Words</source>
        <translation>設定内容</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>チケット</translation>
    </message>
    <message>
        <source>Settings in words</source>
        <translation>設定内容</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies the text that is shown</source>
        <translation>表示されている文章をコピーします</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>JobTiming</name>
    <message>
        <source>&amp;Print:</source>
        <translation>印刷(&amp;P):</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>指定した時刻</translation>
    </message>
    <message>
        <source>At night (18 to 6 h)</source>
        <translation>夜間（18～6時）</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>In the daytime (6 to 18 h)</source>
        <translation>日中（6～18時）</translation>
    </message>
    <message>
        <source>In the evening (18 to 6 h)</source>
        <translation>夕方（18～6時）</translation>
    </message>
    <message>
        <source>In the second shift (16 to 24 h)</source>
        <translation>第2シフト（16～24時）</translation>
    </message>
    <message>
        <source>In the third shift (0 to 8 h)</source>
        <translation>第3シフト（0～8時）</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Of 1 to 100; the higher, the sooner</source>
        <translation>1～100。大きいほど早く印刷されます</translation>
    </message>
    <message>
        <source>P&amp;riority:</source>
        <translation>優先度(&amp;R):</translation>
    </message>
    <message>
        <source>The next time that the clock shows this</source>
        <translation>次にこの時刻になったとき</translation>
    </message>
    <message>
        <source>The print server keeps the job until then; it is sent when you press Print.</source>
        <translation>それまでジョブはプリントサーバーに置かれます。［印刷］を押すと送信されます。</translation>
    </message>
    <message>
        <source>Time to print at</source>
        <translation>印刷する時刻</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>解放されたとき</translation>
    </message>
    <message>
        <source>When to Print</source>
        <translation>印刷する時期</translation>
    </message>
</context>
<context>
    <name>Layout</name>
    <message>
        <source>%1 %</source>
        <comment>a percentage</comment>
        <translation>%1 %</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Shrink larger pages</source>
        <translation>大きいページを縮小</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>用紙いっぱいに</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>倍率指定</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>右へ、次に下へ</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>右へ、次に上へ</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>左へ、次に下へ</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>左へ、次に上へ</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>下へ、次に右へ</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>下へ、次に左へ</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>上へ、次に右へ</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>上へ、次に左へ</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>奇数・偶数</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>奇数ページ</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>偶数ページ</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The device panels are missing (%1).</source>
        <translation>機器のパネルがありません（%1）。</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブを中止</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>there is no such bundle</source>
        <translation>このバンドルはありません</translation>
    </message>
    <message>
        <source>holds no dictionary</source>
        <translation>辞書がありません</translation>
    </message>
    <message>
        <source>missing or not a string</source>
        <translation>見つからないか、文字列ではありません</translation>
    </message>
    <message>
        <source>%1 is already the bundle %2</source>
        <translation>%1はすでにバンドル%2です</translation>
    </message>
    <message>
        <source>not the name of a file</source>
        <translation>ファイルの名前ではありません</translation>
    </message>
    <message>
        <source>the module has no such function</source>
        <translation>モジュールにこの関数がありません</translation>
    </message>
    <message>
        <source>it gave no interface (%1)</source>
        <translation>インターフェイスが返されませんでした（%1）</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>失敗しました（%1）</translation>
    </message>
    <message>
        <source>its interface lacks an operation</source>
        <translation>インターフェイスに必要な操作がありません</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The author of “%1” does not allow printing it without the owner’s password.</source>
        <translation>「%1」の作成者は、所有者のパスワードなしでの印刷を許可していません。</translation>
    </message>
    <message>
        <source>“%1” is locked with a password.</source>
        <translation>「%1」はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>Password of the document</source>
        <translation>文書のパスワード</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>パスワードが違います。</translation>
    </message>
    <message>
        <source>This is not the owner’s password.</source>
        <translation>所有者のパスワードではありません。</translation>
    </message>
</context>
<context>
    <name>People</name>
    <message>
        <source>address book</source>
        <translation>アドレス帳</translation>
    </message>
    <message>
        <source>none is set up; make one in the desktop’s contacts</source>
        <translation>設定されていません。デスクトップの連絡先アプリで作成してください</translation>
    </message>
    <message>
        <source>this address book cannot be changed; make another one the default in the desktop’s contacts</source>
        <translation>このアドレス帳は変更できません。デスクトップの連絡先アプリで、別のアドレス帳を既定にしてください</translation>
    </message>
    <message>
        <source>nobody of that entry is there any more; choose somebody else</source>
        <translation>その項目の人はもういません。別の人を選んでください</translation>
    </message>
    <message>
        <source>the desktop does not answer; log in anew</source>
        <translation>デスクトップが応答しません。ログインし直してください</translation>
    </message>
    <message>
        <source>the system has no thread to give; end other programs and try again</source>
        <translation>システムがスレッドを割り当てられません。ほかのプログラムを終了してから、やり直してください</translation>
    </message>
    <message>
        <source>stopped before it had answered</source>
        <translation>応答の前に終了しました</translation>
    </message>
    <message>
        <source>it does not answer (%1); try again</source>
        <translation>応答しません（%1）。やり直してください</translation>
    </message>
    <message>
        <source>there is no desktop session with an address book; log in to a desktop</source>
        <translation>アドレス帳のあるデスクトップセッションがありません。デスクトップにログインしてください</translation>
    </message>
    <message>
        <source>this desktop has no address book; install the package evolution-data-server</source>
        <translation>このデスクトップにはアドレス帳がありません。パッケージevolution-data-serverをインストールしてください</translation>
    </message>
    <message>
        <source>the part of kelvo-print that asks the address book is not installed; install the package kelvo-print-address-book</source>
        <translation>アドレス帳に問い合わせるkelvo-printの部品がインストールされていません。パッケージkelvo-print-address-bookをインストールしてください</translation>
    </message>
    <message>
        <source>the part of kelvo-print that asks the address book cannot be loaded (%1); install the package kelvo-print-address-book anew, with what it needs</source>
        <translation>アドレス帳に問い合わせるkelvo-printの部品を読み込めません（%1）。必要なものとともにパッケージkelvo-print-address-bookをインストールし直してください</translation>
    </message>
    <message>
        <source>this part that asks the address book is not that of kelvo-print %1; install the package kelvo-print-address-book anew</source>
        <translation>アドレス帳に問い合わせるこの部品は、kelvo-print %1のものではありません。パッケージkelvo-print-address-bookをインストールし直してください</translation>
    </message>
    <message>
        <source>vCards</source>
        <translation>vCard</translation>
    </message>
    <message>
        <source>more than %1 MiB; divide the file</source>
        <translation>%1 MiBを超えています。ファイルを分割してください</translation>
    </message>
    <message>
        <source>more than %1 cards; divide the file</source>
        <translation>カードが%1件を超えています。ファイルを分割してください</translation>
    </message>
    <message>
        <source>there is no card in it; choose a vCard file (.vcf)</source>
        <translation>カードがありません。vCardファイル（.vcf）を選んでください</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Sheet %1, back · blank</source>
        <translation>%1枚目うら · 白紙</translation>
    </message>
    <message>
        <source>Sheet %1 · %2</source>
        <translation>%1枚目 · %2</translation>
    </message>
    <message>
        <source>Sheets %1–%2 · %3</source>
        <translation>%1～%2枚目 · %3</translation>
    </message>
    <message>
        <source>the printer decides where it goes</source>
        <translation>配置はプリンターが決めます</translation>
    </message>
    <message>
        <source>larger than the paper</source>
        <translation>用紙より大きいページです</translation>
    </message>
    <message>
        <source>shown top to bottom; the printer decides</source>
        <translation>上から下に表示（実際はプリンターが決定）</translation>
    </message>
    <message>
        <source>shown left to right; the printer decides</source>
        <translation>左から右に表示（実際はプリンターが決定）</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>「%1」を表示できません</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n sheet(s)</source>
        <translation>
            <numerusform>%1、%n枚</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>白紙</translation>
    </message>
    <message numerus="yes">
        <source>%1 · page(s) %2 of %3</source>
        <translation>
            <numerusform>%1 · ページ %2/%3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, one blank</source>
        <translation>%1、一方は白紙</translation>
    </message>
    <message>
        <source>Sheet %1</source>
        <translation>%1枚目</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>%1枚目うら</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>%1枚目おもて</translation>
    </message>
    <message>
        <source>larger than the places on the sheet</source>
        <translation>用紙上の枠より大きい</translation>
    </message>
    <message>
        <source>at %1</source>
        <comment>a percentage of its size</comment>
        <translation>%1 に拡大縮小</translation>
    </message>
</context>
<context>
    <name>Scripts</name>
    <message>
        <source>Chinese or Japanese</source>
        <translation>中国語または日本語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中国語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア文字</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>アルメニア文字</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>ベンガル文字</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>キリル文字</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>デーバナーガリー文字</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>エチオピア文字</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>ジョージア文字</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ文字</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>グジャラート文字</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>グルムキー文字</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ文字</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>カンナダ文字</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>クメール文字</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>ラオス文字</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>マラヤーラム文字</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation>ビルマ文字</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>シンハラ文字</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>タミル文字</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation>テルグ文字</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ文字</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>チベット文字</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>caution: %1</source>
        <translation>注意: %1</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a clause that stands alone</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Only the printer adds this: %1.</source>
        <translation>次のものはプリンターだけが加えます：%1。</translation>
    </message>
    <message>
        <source>the booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>the watermark</source>
        <translation>ウォーターマーク</translation>
    </message>
    <message>
        <source>covers and inserts</source>
        <translation>表紙と挿入紙</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a document, and what is to be said of it</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StandardWords</name>
    <message>
        <source>Two-sided printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙トレイ</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Output destination</source>
        <translation>排出先</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>最適化</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Trimming</source>
        <translation>断裁</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Other finishing</source>
        <translation>その他の仕上げ</translation>
    </message>
    <message>
        <source>Finishing preset</source>
        <translation>仕上げのプリセット</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>1-sided print</source>
        <translation>片面印刷</translation>
    </message>
    <message>
        <source>2-sided print</source>
        <translation>両面印刷(長辺とじ)</translation>
    </message>
    <message>
        <source>2-sided print, flip on short edge</source>
        <translation>両面印刷(短辺とじ)</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>自動(白黒)</translation>
    </message>
    <message>
        <source>Black only, no shades</source>
        <translation>黒のみ(階調なし)</translation>
    </message>
    <message>
        <source>Black and one color</source>
        <translation>黒と1色</translation>
    </message>
    <message>
        <source>Black only, mixed from colors</source>
        <translation>黒のみ(カラー混色)</translation>
    </message>
    <message>
        <source>Black and white, mixed from colors</source>
        <translation>白黒(カラー混色)</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>カラー(CMYK)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>ドラフト</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>メイントレイ</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>予備トレイ</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>予備ロール</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>手差しトレイ</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手差し給紙</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>上トレイ</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中トレイ</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>下トレイ</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左トレイ</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右トレイ</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央トレイ</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>後トレイ</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>サイドトレイ</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>ディスクトレイ</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>封筒給紙</translation>
    </message>
    <message>
        <source>High-capacity tray</source>
        <translation>大容量トレイ</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>メインロール</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>フォトトレイ</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>トレイ%1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>ロール%1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>指定なし</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>薄紙</translation>
    </message>
    <message>
        <source>Thick paper</source>
        <translation>厚手の用紙</translation>
    </message>
    <message>
        <source>Thick coated paper</source>
        <translation>厚手コート紙</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>インクジェット紙</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>上質紙</translation>
    </message>
    <message>
        <source>Bond paper</source>
        <translation>ボンド紙</translation>
    </message>
    <message>
        <source>Recycled paper</source>
        <translation>再生紙</translation>
    </message>
    <message>
        <source>Colored paper</source>
        <translation>色紙</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>レターヘッド</translation>
    </message>
    <message>
        <source>Preprinted paper</source>
        <translation>印刷済み用紙</translation>
    </message>
    <message>
        <source>Prepunched paper</source>
        <translation>穴あき用紙</translation>
    </message>
    <message>
        <source>Cotton paper</source>
        <translation>コットン紙</translation>
    </message>
    <message>
        <source>Archival paper</source>
        <translation>保存用紙</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>厚紙</translation>
    </message>
    <message>
        <source>Cardboard</source>
        <translation>ボール紙</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>連続紙</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Plain envelope</source>
        <translation>普通封筒</translation>
    </message>
    <message>
        <source>Window envelope</source>
        <translation>窓付き封筒</translation>
    </message>
    <message>
        <source>Fabric</source>
        <translation>布</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>フィルム</translation>
    </message>
    <message>
        <source>Back-print film</source>
        <translation>バックプリントフィルム</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>OHPフィルム</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル紙</translation>
    </message>
    <message>
        <source>Continuous labels</source>
        <translation>連続ラベル</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>写真用紙</translation>
    </message>
    <message>
        <source>Photo paper, glossy</source>
        <translation>写真用紙(光沢)</translation>
    </message>
    <message>
        <source>Photo paper, high gloss</source>
        <translation>写真用紙(高光沢)</translation>
    </message>
    <message>
        <source>Photo paper, matte</source>
        <translation>写真用紙(マット)</translation>
    </message>
    <message>
        <source>Photo paper, satin</source>
        <translation>写真用紙(サテン)</translation>
    </message>
    <message>
        <source>Photo paper, semi-gloss</source>
        <translation>写真用紙(半光沢)</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>写真フィルム</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>タブ紙</translation>
    </message>
    <message>
        <source>Precut tabs</source>
        <translation>カット済みタブ</translation>
    </message>
    <message>
        <source>Fanfold paper</source>
        <translation>折りたたみ連続紙</translation>
    </message>
    <message>
        <source>Multi-part form</source>
        <translation>複写紙</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>上向き</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>下向き</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>マイメールボックス</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>メールボックス%1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>スタッカー%1</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>グラフィック</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>文字とグラフィック</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1か所</translation>
    </message>
    <message>
        <source>1 staple, top left</source>
        <translation>1か所(左上)</translation>
    </message>
    <message>
        <source>1 staple, bottom left</source>
        <translation>1か所(左下)</translation>
    </message>
    <message>
        <source>1 staple, top right</source>
        <translation>1か所(右上)</translation>
    </message>
    <message>
        <source>1 staple, bottom right</source>
        <translation>1か所(右下)</translation>
    </message>
    <message>
        <source>Along an edge</source>
        <translation>端とじ</translation>
    </message>
    <message>
        <source>Along the left edge</source>
        <translation>左端とじ</translation>
    </message>
    <message>
        <source>Along the top edge</source>
        <translation>上端とじ</translation>
    </message>
    <message>
        <source>Along the right edge</source>
        <translation>右端とじ</translation>
    </message>
    <message>
        <source>Along the bottom edge</source>
        <translation>下端とじ</translation>
    </message>
    <message>
        <source>Through the fold</source>
        <translation>中とじ</translation>
    </message>
    <message>
        <source>2 staples, left</source>
        <translation>2か所(左)</translation>
    </message>
    <message>
        <source>2 staples, top</source>
        <translation>2か所(上)</translation>
    </message>
    <message>
        <source>2 staples, right</source>
        <translation>2か所(右)</translation>
    </message>
    <message>
        <source>2 staples, bottom</source>
        <translation>2か所(下)</translation>
    </message>
    <message>
        <source>3 staples, left</source>
        <translation>3か所(左)</translation>
    </message>
    <message>
        <source>3 staples, top</source>
        <translation>3か所(上)</translation>
    </message>
    <message>
        <source>3 staples, right</source>
        <translation>3か所(右)</translation>
    </message>
    <message>
        <source>3 staples, bottom</source>
        <translation>3か所(下)</translation>
    </message>
    <message>
        <source>Holes</source>
        <translation>穴あけ</translation>
    </message>
    <message>
        <source>2 holes, left</source>
        <translation>2穴(左)</translation>
    </message>
    <message>
        <source>2 holes, top</source>
        <translation>2穴(上)</translation>
    </message>
    <message>
        <source>2 holes, right</source>
        <translation>2穴(右)</translation>
    </message>
    <message>
        <source>2 holes, bottom</source>
        <translation>2穴(下)</translation>
    </message>
    <message>
        <source>3 holes, left</source>
        <translation>3穴(左)</translation>
    </message>
    <message>
        <source>3 holes, top</source>
        <translation>3穴(上)</translation>
    </message>
    <message>
        <source>3 holes, right</source>
        <translation>3穴(右)</translation>
    </message>
    <message>
        <source>3 holes, bottom</source>
        <translation>3穴(下)</translation>
    </message>
    <message>
        <source>4 holes, left</source>
        <translation>4穴(左)</translation>
    </message>
    <message>
        <source>4 holes, top</source>
        <translation>4穴(上)</translation>
    </message>
    <message>
        <source>4 holes, right</source>
        <translation>4穴(右)</translation>
    </message>
    <message>
        <source>4 holes, bottom</source>
        <translation>4穴(下)</translation>
    </message>
    <message>
        <source>Many holes, left</source>
        <translation>多穴(左)</translation>
    </message>
    <message>
        <source>Many holes, top</source>
        <translation>多穴(上)</translation>
    </message>
    <message>
        <source>Many holes, right</source>
        <translation>多穴(右)</translation>
    </message>
    <message>
        <source>Many holes, bottom</source>
        <translation>多穴(下)</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>アコーディオン折り</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>ダブル観音折り</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>エンジニアリングZ折り</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>観音折り</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>2つ折り</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>片袖Z折り</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>左観音折り</translation>
    </message>
    <message>
        <source>C fold</source>
        <translation>内三つ折り</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>平行折り</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>ポスター折り</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>右観音折り</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>外三つ折り</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>断裁</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>ページごと</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>文書ごと</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>部ごと</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>ジョブの後</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>上端</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>下端</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Offset each set</source>
        <translation>部ごとにオフセット</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>コーティング</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>ラミネート</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1(フチなし)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>封筒 %1</translation>
    </message>
    <message>
        <source>Index card %1</source>
        <translation>カード %1</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>写真 %1</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 dpi</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>はがき</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>往復はがき</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>the system has no thread to read it on; close programs and choose it again</source>
        <translation>読み込むためのスレッドをシステムが割り当てられません。ほかのプログラムを終了してから、選び直してください</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>画像を読み込んでいます…</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>画像を表示できません。</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>PDF, PostScript, text and pictures</source>
        <translation>PDF、PostScript、テキスト、画像</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more)</source>
        <translation>
            <numerusform>%1（ほか%n件）</numerusform>
        </translation>
    </message>
    <message>
        <source>its Info.plist names no factory for print dialog panels</source>
        <translation>Info.plistに、印刷ダイアログのパネルを作る関数の指定がありません</translation>
    </message>
    <message>
        <source>it has no function %1</source>
        <translation>関数%1がありません</translation>
    </message>
    <message>
        <source>%1 makes no panels</source>
        <translation>%1がパネルを作りません</translation>
    </message>
    <message>
        <source>it has no panel interface, status %1</source>
        <translation>パネルのインターフェイスがありません（ステータス%1）</translation>
    </message>
    <message>
        <source>Prologue failed with %1</source>
        <translation>Prologueが%1で失敗しました</translation>
    </message>
    <message>
        <source>Initialize failed with %1</source>
        <translation>Initializeが%1で失敗しました</translation>
    </message>
    <message>
        <source>%1: panel left out: %2</source>
        <translation>%1: パネルを省きました: %2</translation>
    </message>
    <message>
        <source>%1: the panel %2 could not be opened</source>
        <translation>%1: パネル%2を開けませんでした</translation>
    </message>
    <message>
        <source>there is no such panel here; there are: %1</source>
        <translation>このパネルはありません。使えるパネル: %1</translation>
    </message>
    <message>
        <source>there are no tabs</source>
        <translation>タブがありません</translation>
    </message>
    <message>
        <source>the tab cannot be chosen</source>
        <translation>このタブは選べません</translation>
    </message>
    <message>
        <source>there is no such tab here; there are: %1</source>
        <translation>このタブはありません。使えるタブ: %1</translation>
    </message>
    <message>
        <source>it is in tab %1, %2</source>
        <translation>タブ%1「%2」にあります</translation>
    </message>
    <message>
        <source>it is in panel %1</source>
        <translation>パネル%1にあります</translation>
    </message>
    <message>
        <source>it is in dialogs that are not open</source>
        <translation>開いていないダイアログにあります</translation>
    </message>
    <message>
        <source>it is in the dialog “%1”</source>
        <translation>ダイアログ「%1」にあります</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>this part that reads window descriptions is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>ウィンドウの定義を読み込むこの部品が、プログラムのライブラリーと同じ場所にインストールされていません。kelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>this part that reads window descriptions cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>ウィンドウの定義を読み込むこの部品を読み込めません（%1）。必要なパッケージとともにkelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>this is not the part that reads window descriptions of kelvo-print %1; install kelvo-print anew</source>
        <translation>ウィンドウの定義を読み込むこの部品は、kelvo-print %1のものではありません。kelvo-printをインストールし直してください</translation>
    </message>
    <message>
        <source>“%1” is of the class “%2”; use one of %3</source>
        <translation>「%1」のクラスは「%2」です。次のいずれかを使ってください: %3</translation>
    </message>
    <message>
        <source>“%1” has the control ID “%2”; write four characters, a blank and a number, such as “KPDE 102”</source>
        <translation>「%1」のコントロールIDが「%2」です。「KPDE 102」のように、4文字、空白、数値の順に書いてください</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the control ID “%3”; give one of them another</source>
        <translation>「%1」と「%2」のコントロールIDがどちらも「%3」です。どちらかを変えてください</translation>
    </message>
    <message>
        <source>“%1” has the command “%2”; write four characters, such as “ok  ”</source>
        <translation>「%1」のコマンドが「%2」です。「ok  」のように4文字で書いてください</translation>
    </message>
    <message>
        <source>there is no bundle to load the window from</source>
        <translation>ウィンドウを読み込むバンドルがありません</translation>
    </message>
    <message>
        <source>the bundle has no such window description</source>
        <translation>バンドルにこのウィンドウの定義がありません</translation>
    </message>
    <message>
        <source>%1: the window cannot be made: %2</source>
        <translation>%1: ウィンドウを作成できません: %2</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF ファイル</translation>
    </message>
    <message>
        <source>%1 (printed)</source>
        <comment>the name of a file</comment>
        <translation>%1 (印刷)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>印刷する文書の選択</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1, did you mean %2?</source>
        <translation>%1。%2の間違いではありませんか?</translation>
    </message>
    <message>
        <source>%1; there are %2</source>
        <translation>%1。使えるもの: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>where, and what is wrong there</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>clauses of one sentence</comment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>members of a series</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>kelvo::CautionBar</name>
    <message>
        <source>Fi&amp;x</source>
        <translation>修正(&amp;X)</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Fix: %1</source>
        <translation>修正: %1</translation>
    </message>
    <message>
        <source>Changes the settings so that they can be used together</source>
        <translation>同時に使用できるように設定を変更します</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>これらの設定は同時に使用できません</translation>
    </message>
    <message>
        <source>Before you print</source>
        <translation>印刷前の確認</translation>
    </message>
    <message>
        <source>Change one of them.</source>
        <translation>どちらかを変更してください。</translation>
    </message>
    <message>
        <source>Fix would do this:</source>
        <translation>［修正］を押すと、次のように変更されます:</translation>
    </message>
</context>
<context>
    <name>kelvo::DialogFoot</name>
    <message>
        <source>&amp;What Will Be Sent…</source>
        <translation>送信内容(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>印刷を中止</translation>
    </message>
    <message>
        <source>All settings of the job in words, before it is printed</source>
        <translation>印刷する前に、ジョブのすべての設定を文章で確認します</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>PDF として保存…</translation>
    </message>
    <message>
        <source>The pages as they would be printed, in a file</source>
        <translation>印刷されるとおりのページをファイルに</translation>
    </message>
    <message>
        <source>At once or later, and before which other jobs</source>
        <translation>すぐにまたは後で、ほかのどのジョブより先に</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>ジョブを中止(&amp;J)</translation>
    </message>
    <message>
        <source>Takes the job back from the print server</source>
        <translation>プリントサーバーからジョブを取り消します</translation>
    </message>
    <message>
        <source>When to Print…</source>
        <translation>印刷時期…</translation>
    </message>
</context>
<context>
    <name>kelvo::DialogSession</name>
    <message>
        <source>The panels are not made for this device (%1).</source>
        <translation>パネルはこの機器（%1）に対応していません。</translation>
    </message>
    <message>
        <source>The panels are not made for this device (%1, made by %2).</source>
        <translation>パネルはこの機器（%1、%2製）に対応していません。</translation>
    </message>
    <message>
        <source>The panels could not start (%1). Installing them again may help.</source>
        <translation>パネルを開始できませんでした（%1）。インストールし直すと、使えるようになることがあります。</translation>
    </message>
    <message>
        <source>The panels cannot be loaded: %1</source>
        <translation>パネルを読み込めません: %1。</translation>
    </message>
    <message>
        <source>Copies, pages, paper size and orientation work as usual.</source>
        <translation>部数、ページ、用紙サイズ、印刷の向きは通常どおり使えます。</translation>
    </message>
    <message>
        <source>Copies and pages work as usual. Paper size, orientation and collating are passed on; whether they are heeded is up to the printer.</source>
        <translation>部数とページは通常どおり使えます。用紙サイズ、印刷の向き、部単位の印刷の設定も送信されますが、従うかどうかはプリンターによります。</translation>
    </message>
    <message>
        <source>No device panels for “%1”</source>
        <translation>「%1」用の機器のパネルはありません</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentBar</name>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>The document that the preview shows, and Remove removes</source>
        <translation>プレビューに表示され、「削除」の対象になる文書</translation>
    </message>
    <message>
        <source>Document actions</source>
        <translation>文書の操作</translation>
    </message>
    <message>
        <source>Add or remove documents</source>
        <translation>文書の追加または削除</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Print all as one job</source>
        <translation>すべてを1つのジョブで印刷</translation>
    </message>
    <message>
        <source>The pages follow one another, as if the files were one document</source>
        <translation>複数のファイルを1つの文書のように、ページを続けて印刷します</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>パスワードの入力…</translation>
    </message>
    <message>
        <source>%1 (sent)</source>
        <translation>%1（送信済み）</translation>
    </message>
    <message>
        <source>%1 (locked)</source>
        <translation>%1（保護）</translation>
    </message>
    <message>
        <source>%1 (cannot be printed)</source>
        <translation>%1（印刷できません）</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <comment>which document of how many, and its name</comment>
        <translation>%1/%2: %3</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentOpening</name>
    <message>
        <source>There is no document to print.</source>
        <translation>印刷する文書がありません。</translation>
    </message>
    <message>
        <source>The document cannot be opened: %1</source>
        <translation>文書を開けません: %1。</translation>
    </message>
    <message>
        <source>type it in the window, or write it into a file of mode 0600 that --secret DOCUMENT=FILE names</source>
        <translation>ウィンドウで入力するか、モード0600のファイルに書き込んで --secret DOCUMENT=FILE で指定してください</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentPreview</name>
    <message>
        <source>This page cannot be shown.</source>
        <translation>このページを表示できません。</translation>
    </message>
    <message>
        <source>This page takes too long to be shown. The printer may still print it.</source>
        <translation>このページの表示に時間がかかりすぎています。印刷はできる可能性があります。</translation>
    </message>
    <message>
        <source>This page needs too much memory to be shown. The printer may still print it.</source>
        <translation>このページの表示に必要なメモリーが多すぎます。印刷はできる可能性があります。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
</context>
<context>
    <name>kelvo::Folder</name>
    <message>
        <source>Writing to %1…</source>
        <translation>%1に書き込んでいます…</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>%1に書き込みました</translation>
    </message>
</context>
<context>
    <name>kelvo::LayoutRows</name>
    <message>
        <source>%1 per sheet</source>
        <translation>1面に %1</translation>
    </message>
    <message>
        <source>&amp;Borders around pages</source>
        <translation>枠線(&amp;B)</translation>
    </message>
    <message>
        <source>Odd and even pages, order, scaling, and several pages on a sheet</source>
        <translation>奇数・偶数ページ、順序、拡大縮小、1面に複数ページ</translation>
    </message>
    <message>
        <source>Page layout</source>
        <translation>ページレイアウト</translation>
    </message>
    <message>
        <source>Page layout: %1</source>
        <translation>ページレイアウト：%1</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>1面のページ数(&amp;H):</translation>
    </message>
    <message>
        <source>Percentage of a page’s own size</source>
        <translation>ページ本来の大きさに対する倍率</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>逆順(&amp;V)</translation>
    </message>
    <message>
        <source>Sc&amp;aling:</source>
        <translation>拡大縮小(&amp;A):</translation>
    </message>
    <message>
        <source>The last page, or sheet, comes out first</source>
        <translation>最後のページ（用紙）から出します</translation>
    </message>
    <message>
        <source>Where the next page lies</source>
        <translation>次のページの位置</translation>
    </message>
    <message>
        <source>not scaled</source>
        <translation>拡大縮小なし</translation>
    </message>
    <message>
        <source>reversed</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Of th&amp;ese:</source>
        <translation>対象(&amp;E):</translation>
    </message>
</context>
<context>
    <name>kelvo::OptionsPane</name>
    <message>
        <source>Printer options</source>
        <translation>プリンターのオプション</translation>
    </message>
    <message>
        <source>This printer has no options of its own.</source>
        <translation>このプリンターには独自のオプションがありません。</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (not offered)</source>
        <translation>%1(選択できません)</translation>
    </message>
    <message>
        <source>Cannot be used together with other settings</source>
        <translation>ほかの設定と一緒には使えません</translation>
    </message>
    <message>
        <source>The printer’s equipment leaves no other choice</source>
        <translation>プリンターの装備では、ほかに選べません</translation>
    </message>
</context>
<context>
    <name>kelvo::PresetMenu</name>
    <message>
        <source>Default settings</source>
        <translation>既定の設定</translation>
    </message>
    <message>
        <source>Type a name for the preset.</source>
        <translation>プリセットの名前を入力してください。</translation>
    </message>
    <message>
        <source>“%1” is how the printer comes. Choose another name.</source>
        <translation>「%1」はプリンターの初期設定の名前です。別の名前にしてください。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>&amp;Keep passcodes in this preset</source>
        <translation>暗証番号もプリセットに保存する(&amp;K)</translation>
    </message>
    <message>
        <source>Whoever can read the preset can read them</source>
        <translation>プリセットを読める人は、暗証番号も読むことができます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>A preset cannot have this name</source>
        <translation>この名前はプリセットに使えません</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>プリセット「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>There is a preset of this name. Its settings are lost when you replace it.</source>
        <translation>この名前のプリセットがあります。置き換えると、元の設定はなくなります。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>There is a preset “%1” already</source>
        <translation>プリセット「%1」はすでにあります</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>別の名前にしてください。</translation>
    </message>
    <message>
        <source>Preset actions</source>
        <translation>プリセットの操作</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>プリセットの保存、名前の変更、削除を行います</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前の変更…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>%1*</source>
        <comment>a preset that was changed</comment>
        <translation>%1*</translation>
    </message>
    <message>
        <source>The preset “%1” cannot be read</source>
        <translation>プリセット「%1」を読み込めません</translation>
    </message>
    <message>
        <source>%1
The settings stay as they are.</source>
        <translation>%1。
設定は変更されていません。</translation>
    </message>
    <message>
        <source>The preset “%1” was not saved</source>
        <translation>プリセット「%1」を保存できませんでした</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセットの名前の変更</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>The preset “%1” was not renamed</source>
        <translation>プリセット「%1」の名前を変更できませんでした</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>プリセット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>The settings in this window stay as they are.</source>
        <translation>このウィンドウの設定は変わりません。</translation>
    </message>
    <message>
        <source>The preset “%1” was not deleted</source>
        <translation>プリセット「%1」を削除できませんでした</translation>
    </message>
    <message>
        <source>A star means that settings have changed since it was chosen.</source>
        <translation>*は、選んだ後に設定が変更されたことを示します。</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>前回使った設定</translation>
    </message>
    <message>
        <source>“%1” is what was printed with last. Choose another name.</source>
        <translation>「%1」は前回の印刷に使った設定です。別の名前を選んでください。</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintDialog</name>
    <message>
        <source>Opening %1…</source>
        <translation>%1を開いています…</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>「%1」の印刷</translation>
    </message>
    <message>
        <source>Not to be printed like this. Pages: %1</source>
        <translation>このままでは印刷できません。ページ: %1</translation>
    </message>
    <message>
        <source>Type the pages to print.</source>
        <translation>印刷するページを入力してください。</translation>
    </message>
    <message>
        <source>Fix and Print</source>
        <translation>修正して印刷</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>このまま印刷</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>中止しています…</translation>
    </message>
    <message>
        <source>there are no panels</source>
        <translation>パネルがありません</translation>
    </message>
    <message>
        <source>the left column</source>
        <translation>左の列</translation>
    </message>
    <message>
        <source>“%1” is locked with a password.</source>
        <translation>「%1」はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>What was printed with is not kept: %1</source>
        <translation>印刷に使った設定は保存されません: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintFlow</name>
    <message>
        <source>“%1” was not printed</source>
        <translation>「%1」は印刷されませんでした</translation>
    </message>
    <message>
        <source>The printer’s settings have not come yet.</source>
        <translation>プリンターの設定をまだ取得していません。</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a headline and what follows it</comment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>The document is not open yet.</source>
        <translation>文書をまだ開いていません。</translation>
    </message>
    <message>
        <source>“%1” is a device without a queue. Start kelvo-print with --to DIR to write the job into a folder, or with -d to print to a queue.</source>
        <translation>「%1」は印刷キューのない機器です。ジョブをフォルダーに書き込むには--to DIR、印刷キューに印刷するには-dを付けて、kelvo-printを起動してください。</translation>
    </message>
    <message>
        <source>No printer was named, and there is no default printer. Name one with -d; --list-printers says which there are.</source>
        <translation>プリンターが指定されておらず、既定のプリンターもありません。-dで指定してください。使えるプリンターは--list-printersで確認できます。</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>ページ: %1</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>これらの設定は同時に使用できません</translation>
    </message>
    <message>
        <source>The settings could not be written. %1</source>
        <translation>設定を書き込めませんでした。%1。</translation>
    </message>
    <message>
        <source>interrupted while the job was being sent; it may have been accepted: look at the printer’s queue before you print again</source>
        <translation>ジョブの送信中に中断されました。ジョブは受け付けられている可能性があります。もう一度印刷する前に、プリンターの印刷キューを確認してください</translation>
    </message>
    <message>
        <source>%1: not sent, this printer does not have it</source>
        <translation>%1: このプリンターにないため、送信されません</translation>
    </message>
    <message>
        <source>%1: not sent, the print server has no description of this printer</source>
        <translation>%1: プリントサーバーにこのプリンターの情報がないため、送信されません</translation>
    </message>
    <message>
        <source>%1: not sent, this printer reads no tickets</source>
        <translation>%1: このプリンターはチケットを読み取らないため、送信されません</translation>
    </message>
    <message>
        <source>Not all documents are open yet.</source>
        <translation>まだ開いていない文書があります。</translation>
    </message>
    <message>
        <source>Pages of %1: %2</source>
        <translation>%1のページ: %2</translation>
    </message>
    <message>
        <source>Sending %1 of %2: %3</source>
        <translation>%2件中%1件目を送信しています: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) written</source>
        <translation>
            <numerusform>%n件の文書を書き込みました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) sent to %1</source>
        <translation>
            <numerusform>%n件の文書を%1に送信しました</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a document, and its job</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>No document was sent.</source>
        <translation>文書は送信されていません。</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>送信済み: %1。</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>未送信: %1。</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintRun</name>
    <message>
        <source>The job was cancelled.</source>
        <translation>ジョブを中止しました。</translation>
    </message>
    <message>
        <source>Nothing was sent: %1.</source>
        <translation>何も送信されませんでした: %1。</translation>
    </message>
</context>
<context>
    <name>Printers</name>
    <message>
        <source>takes no jobs</source>
        <translation>ジョブを受け付けません</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>printer and its state</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>printer and its state</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a printer’s state and why</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>選択中</translation>
    </message>
    <message>
        <source>default</source>
        <translation>既定</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterChooser</name>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Name, place or model</source>
        <translation>名前、場所、機種</translation>
    </message>
    <message>
        <source>Search for a printer</source>
        <translation>プリンターを検索</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>No printer has this in its name, place or model.</source>
        <translation>名前、場所、機種にこれを含むプリンターはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n printer(s)</source>
        <translation>
            <numerusform>%n台のプリンター</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n printer(s)</source>
        <translation>
            <numerusform>%n台中%1台のプリンター</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterPane</name>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>縦(上下逆)</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>横(上下逆)</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>部単位で印刷(&amp;O)</translation>
    </message>
    <message>
        <source>Prin&amp;ter:</source>
        <translation>プリンター(&amp;T):</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>プリセット(&amp;S):</translation>
    </message>
    <message>
        <source>Each copy is complete before the next one begins</source>
        <translation>1部ずつそろえて印刷します</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>印刷するページ</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>用紙サイズ(&amp;E):</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>印刷の向き(&amp;I):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>A device without a queue: nothing can be sent to it</source>
        <translation>印刷キューのない機器のため、送信できません</translation>
    </message>
    <message>
        <source>As the printer has it</source>
        <translation>プリンターの設定のまま</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>ユーザー定義: %1</translation>
    </message>
    <message>
        <source>%1 (not on this printer)</source>
        <translation>%1 (このプリンターにありません)</translation>
    </message>
    <message>
        <source>such as 1-3, 7</source>
        <translation>例: 1-3, 7</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>表示中のページ</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterSearch</name>
    <message>
        <source>Looking for printers</source>
        <translation>プリンターを探しています</translation>
    </message>
    <message>
        <source>The print server has not answered yet.</source>
        <translation>プリントサーバーからまだ応答がありません。</translation>
    </message>
    <message>
        <source>The print server does not answer</source>
        <translation>プリントサーバーが応答しません</translation>
    </message>
    <message>
        <source>The printers cannot be listed</source>
        <translation>プリンターの一覧を取得できません</translation>
    </message>
    <message>
        <source>There is no printer</source>
        <translation>プリンターがありません</translation>
    </message>
    <message>
        <source>Add one in the system’s printer settings, then try again.</source>
        <translation>システムのプリンター設定で追加してから、やり直してください。</translation>
    </message>
    <message>
        <source>There is no printer “%1”</source>
        <translation>プリンター「%1」がありません</translation>
    </message>
    <message>
        <source>The print server does not know it.</source>
        <translation>プリントサーバーに登録されていません。</translation>
    </message>
    <message>
        <source>The print server does not know it</source>
        <translation>プリントサーバーに登録されていません</translation>
    </message>
    <message>
        <source>Choose another printer, or try again.</source>
        <translation>別のプリンターを選ぶか、やり直してください。</translation>
    </message>
    <message>
        <source>Asking for the settings of “%1”</source>
        <translation>「%1」の設定を取得しています</translation>
    </message>
    <message>
        <source>The print server’s description of them is damaged (%1).</source>
        <translation>プリントサーバーにある情報が壊れています（%1）。</translation>
    </message>
    <message>
        <source>The settings of “%1” cannot be read</source>
        <translation>「%1」の設定を読み込めません</translation>
    </message>
    <message>
        <source>Try again, or choose another printer.</source>
        <translation>やり直すか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The print server has no description of its settings.</source>
        <translation>プリントサーバーに設定の情報がありません。</translation>
    </message>
    <message>
        <source>the print server does not know it any more</source>
        <translation>プリントサーバーに登録されていません</translation>
    </message>
</context>
<context>
    <name>kelvo::Queue</name>
    <message>
        <source>Sending to %1…</source>
        <translation>%1に送信しています…</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <comment>a job</comment>
        <translation>%1を送信しました</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what is wrong, and what the server said</comment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>kelvo::SentMessage</name>
    <message>
        <source>Cancelling %1…</source>
        <translation>%1を中止しています…</translation>
    </message>
</context>
<context>
    <name>kelvo::WaitingPane</name>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>やり直す(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>kelvo::WindowColumns</name>
    <message>
        <source>Show or hide printer, pages and preview (F9)</source>
        <translation>プリンター、ページ、プレビューの表示/非表示 (F9)</translation>
    </message>
    <message>
        <source>Printer, pages and preview</source>
        <translation>プリンター、ページ、プレビュー</translation>
    </message>
    <message>
        <source>Device Settings</source>
        <translation>機器の設定</translation>
    </message>
    <message>
        <source>Printer and Paper</source>
        <translation>プリンターと用紙</translation>
    </message>
</context>
</TS>
