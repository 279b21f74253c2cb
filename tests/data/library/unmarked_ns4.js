(function(){
var shared=window.ZEVMenu&&ZEVMenu.shared;if(!shared||shared.isModern||shared.writeLinks)return;var menus=shared.state.menus,isWritten=false;function attribute(name,value){return value?' '+name+'="'+value.replace(/"/g,'&quot;')+'"':'';}
function linkOf(menu,item){var caption=item.caption,target=item.target||shared.setting(menu,'target');if(item.imageOut){caption='<img border="0"'+attribute('src',item.imageOut)+
attribute('alt',shared.nameFromFiles(item))+'>';}
if(!item.url)return caption;return'<a'+attribute('href',item.url)+attribute('target',target)+'>'+caption+
'</a>';}
function listOf(menu){var html='<ul>',i,item,child;for(i=0;i<menu.zevItems.length;i++){item=menu.zevItems[i];if(item){child=menus[shared.submenuId(menu,i+1)];html+='<li>'+linkOf(menu,item)+(child?listOf(child):'')+'</li>';}}
return html+'</ul>';}
shared.writeLinks=function(){var top=menus['0'];if(top&&!isWritten){isWritten=true;document.write(listOf(top));}};
})();
